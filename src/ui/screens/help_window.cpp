#include "ui/screens/help_window.h"

#include "commands/print_run.h"
#include "outside/clipboard.h"
#include "outside/help.h"
#include "outside/messages.h"
#include "paint/text.h"
#include "ui/outside/printer_qt.h"
#include "ui/screens/help_page.h"
#include "ui/window/front.h"
#include "ui/window/later.h"
#include "ui/window/placing.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchResult>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <cmath>

namespace kelvarine {

namespace {

constexpr QSize StartSize{930, 760};
constexpr int SideWidth = 280;
constexpr int SmallestPage = 420; // width that every table and every position as text fits into
constexpr int SmallestZoom = -4;
constexpr int LargestZoom = 12;
constexpr double PictureStep = 0.1; // by which a step of zoom changes a picture
constexpr int MostResults = 50;
constexpr double PageMargin = 16;
constexpr int MessageTime = 8000; // milliseconds

QPointer<HelpWindow> helpWindow;

// A list or tree with a line of text above it that steers it.
QWidget *UnderText(QLineEdit *text, const QString &label, QWidget *list)
{
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    auto *caption = new QLabel(label, pane);
    caption->setBuddy(text);
    layout->addWidget(caption);
    layout->addWidget(text);
    layout->addWidget(list);
    return pane;
}

} // namespace

// ---- The page --------------------------------------------------------------------------------

HelpBrowser::HelpBrowser(const QHelpEngineCore &helpEngine, QWidget *parent)
    : QTextBrowser(parent), engine(helpEngine)
{
    setOpenLinks(false);
    setAccessibleName("Help page");
    document()->setDocumentMargin(PageMargin);
    setMinimumWidth(SmallestPage);
    pictureRatio = devicePixelRatioF();
    pictureDark = IsDark();
    pictureSide = UsualSide();
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    // All pages lie in one folder, and nothing but the help is ever read.
    const QUrl place = PageOfContext(engine, 0).resolved(name);
    if (type == QTextDocument::ImageResource) {
        return Picture(place);
    }
    const QByteArray bytes = engine.fileData(place);
    return type == QTextDocument::HtmlResource ? QVariant(QString::fromUtf8(bytes))
                                               : QVariant(bytes);
}

bool HelpBrowser::IsDark() const
{
    return palette().color(QPalette::Base).lightness() <
           palette().color(QPalette::Text).lightness();
}

// The width of a picture that is not zoomed: its own, or what a narrow page of the window has for
// it.
int HelpBrowser::UsualSide() const
{
    if (isOnPaper) {
        return HelpPictureSide;
    }
    const int room = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() -
                     2 * static_cast<int>(PageMargin);
    return std::clamp(room, 1, HelpPictureSide);
}

// The picture in the form for the window's colours, at the size that the zoom asks for, in the
// pixels of the screen.
QVariant HelpBrowser::Picture(const QUrl &name) const
{
    const QUrl form = IsDark() && !isOnPaper ? QUrl(DarkFormOf(name.toString())) : name;
    QImage picture = QImage::fromData(engine.fileData(form)).convertToFormat(QImage::Format_RGB32);
    const double ratio = devicePixelRatioF();
    const double side = UsualSide() * (1 + zoom * PictureStep);
    picture = picture.scaledToWidth(static_cast<int>(std::lround(side * ratio)),
                                    Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

// Makes the pictures anew and keeps the place in the page.
void HelpBrowser::LoadAgain()
{
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

// Another screen, other colours of the desktop or a narrower page want other pictures.
void HelpBrowser::paintEvent(QPaintEvent *event)
{
    QTextBrowser::paintEvent(event);
    if (pictureRatio != devicePixelRatioF() || pictureDark != IsDark() ||
        pictureSide != UsualSide()) {
        pictureRatio = devicePixelRatioF();
        pictureDark = IsDark();
        pictureSide = UsualSide();
        Later(this, &HelpBrowser::LoadAgain);
    }
}

void HelpBrowser::Zoom(int steps)
{
    const int wanted = std::clamp(zoom + steps, SmallestZoom, LargestZoom);
    zoomIn(wanted - zoom);
    zoom = wanted;
    reload();
}

void HelpBrowser::ResetZoom()
{
    Zoom(-zoom);
}

bool HelpBrowser::PrintOn(QPagedPaintDevice &paper)
{
    isOnPaper = true;
    print(&paper);
    isOnPaper = false;
    if (IsDark()) {
        LoadAgain(); // the paper's pictures have taken the place of those on view
    }
    const auto *printer = dynamic_cast<QPrinter *>(&paper);
    return printer == nullptr || printer->printerState() != QPrinter::Error;
}

// ---- The window ------------------------------------------------------------------------------

HelpWindow::HelpWindow(std::unique_ptr<HelpCollection> opened)
    : Browser(new HelpBrowser(*opened->Engine, this)), Tabs(new QTabWidget(this)),
      IndexText(new QLineEdit(this)), SearchText(new QLineEdit(this)),
      SearchResults(new QListWidget(this)), help(std::move(opened)), searcher(help->Engine.get())
{
    setObjectName("frmHelp");
    setAttribute(Qt::WA_QuitOnClose, false);
    BuildToolBar();
    Tabs->addTab(BuildContents(), "&Contents");
    Tabs->addTab(BuildIndex(), "&Index");
    Tabs->addTab(BuildSearch(), "&Search");
    Tabs->setAccessibleName("Ways into the help");
    Tabs->tabBar()->installEventFilter(this);
    // The captions have their room, however large their font is.
    Tabs->setUsesScrollButtons(false);
    Tabs->setElideMode(Qt::ElideNone);

    auto *splitter = new QSplitter(this);
    splitter->addWidget(Tabs);
    splitter->addWidget(Browser);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({SideWidth, StartSize.width() - SideWidth});
    setCentralWidget(splitter);
    statusBar();
    // In a large font the buttons take more than the usual width; what a small screen does not give
    // them is behind an arrow.
    resize(StartSize.expandedTo({findChild<QToolBar *>()->sizeHint().width(), 0}));

    connect(Browser, &QTextBrowser::anchorClicked, this, &HelpWindow::OpenLink);
    connect(Browser, &QTextBrowser::sourceChanged, this, &HelpWindow::PageChanged);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::BuildToolBar()
{
    auto *bar = addToolBar("Help");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](const QString &text, const QList<QKeySequence> &keys, const auto &run) {
        QAction *action = bar->addAction(text);
        action->setShortcuts(keys);
        action->setToolTip(text + " (" + keys.front().toString(QKeySequence::NativeText) + u')');
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    QAction *back =
        add("Back", {QKeySequence(Qt::ALT | Qt::Key_Left)}, [this] { Browser->backward(); });
    QAction *forward =
        add("Forward", {QKeySequence(Qt::ALT | Qt::Key_Right)}, [this] { Browser->forward(); });
    QAction *home = add("Home", {QKeySequence(Qt::ALT | Qt::Key_Home)},
                        [this] { Browser->setSource(PageOfContext(*help->Engine, 0)); });
    bar->addSeparator();
    add("Larger",
        QKeySequence::keyBindings(QKeySequence::ZoomIn) +
            QList{QKeySequence(Qt::CTRL | Qt::Key_Equal)},
        [this] { Browser->Zoom(1); });
    add("Smaller", QKeySequence::keyBindings(QKeySequence::ZoomOut), [this] { Browser->Zoom(-1); });
    add("Usual size", {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { Browser->ResetZoom(); });

    bar->addSeparator();
    add("Print", QKeySequence::keyBindings(QKeySequence::Print), [this] { Print(); });

    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    home->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(Browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(Browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

// The letter of a tab leads into its pane, also when the pane is on view already.
bool HelpWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Shortcut) {
        Later(this, &HelpWindow::FocusPane);
    }
    return QMainWindow::eventFilter(watched, event);
}

// Puts the cursor into what steers the pane on view.
void HelpWindow::FocusPane()
{
    if (Tabs->currentIndex() == 0) {
        help->Engine->contentWidget()->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    QLineEdit *text = Tabs->currentIndex() == 1 ? IndexText : SearchText;
    text->setFocus(Qt::ShortcutFocusReason);
    text->selectAll();
}

QWidget *HelpWindow::BuildContents()
{
    QHelpContentWidget *contents = help->Engine->contentWidget();
    contents->setAccessibleName("Contents of the help");
    // No title is cut: those that are wider than the pane can be scrolled to.
    contents->header()->setStretchLastSection(false);
    contents->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(contents, &QHelpContentWidget::linkActivated, Browser,
            [this](const QUrl &page) { Browser->setSource(page); });
    connect(contents, &QAbstractItemView::clicked, contents,
            [contents](const QModelIndex &index) { emit contents->activated(index); });
    connect(help->Engine->contentModel(), &QHelpContentModel::contentsCreated, contents, [=, this] {
        contents->expandToDepth(0);
        PageChanged(Browser->source());
    });
    return contents;
}

QWidget *HelpWindow::BuildIndex()
{
    QHelpIndexWidget *index = help->Engine->indexWidget();
    index->setAccessibleName("Words of the index");
    IndexText->setClearButtonEnabled(true);
    connect(IndexText, &QLineEdit::textChanged, index,
            [index](const QString &text) { index->filterIndices(text, text + u'*'); });
    connect(IndexText, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, Browser,
            [this](const QHelpLink &page) { Browser->setSource(page.url); });
    connect(index, &QHelpIndexWidget::documentsActivated, Browser,
            [this](const QList<QHelpLink> &pages) { Browser->setSource(pages.front().url); });
    return UnderText(IndexText, "&Look for:", index);
}

QWidget *HelpWindow::BuildSearch()
{
    SearchResults->setAccessibleName("Pages found");
    SearchText->setClearButtonEnabled(true);
    SearchText->setEnabled(help->Searchable);
    connect(SearchText, &QLineEdit::returnPressed, this, &HelpWindow::Search);
    connect(&searcher, &QHelpSearchEngine::searchingFinished, this, &HelpWindow::ShowSearchResults);
    connect(&searcher, &QHelpSearchEngine::indexingFinished, this, [this] {
        indexed = true;
        Search();
    });
    const auto open = [this](const QListWidgetItem *item) {
        if (item->data(Qt::UserRole).isValid()) {
            Browser->setSource(item->data(Qt::UserRole).toUrl());
        }
    };
    connect(SearchResults, &QListWidget::itemClicked, Browser, open);
    connect(SearchResults, &QListWidget::itemActivated, Browser, open);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        Tabs->setCurrentIndex(2);
        FocusPane();
    });
    if (help->Searchable) {
        searcher.reindexDocumentation();
    } else {
        SearchResults->addItem("There is no room on the disk to search in.");
    }
    return UnderText(SearchText, "&Words, then Enter:", SearchResults);
}

void HelpWindow::OpenLink(const QUrl &link)
{
    if (link.scheme() == "copy") {
        CopyPosition(link.path().toStdString());
    } else {
        Browser->setSource(Browser->source().resolved(link));
    }
}

void HelpWindow::Print()
{
    if (PrintRunning != False || IsPrinting()) {
        statusBar()->showMessage("Printing is under way.", MessageTime);
        return;
    }
    const bool chosen = ChoosePrinterOver(this);
    activateWindow(); // where no window manager gives the front back
    if (!chosen) {
        return;
    }
    const auto print = [this](QPagedPaintDevice &paper) {
        return Browser->PrintOn(paper);
    };
    if (const std::string failure = PrintInOneGo(print); !failure.empty()) {
        ShowMessage("The page can't be printed.\r\r" + failure);
    }
}

// What stands behind "copy:" in a link is a position as one line.
void HelpWindow::CopyPosition(const std::string &position)
{
    SetClipboardText(position);
    statusBar()->showMessage("The position is copied. Press Ctrl+V on the board.", MessageTime);
}

void HelpWindow::PageChanged(const QUrl &page)
{
    setWindowTitle(Browser->documentTitle() + " - Kelvarine Help");
    QHelpContentWidget *contents = help->Engine->contentWidget();
    const QModelIndex place = contents->indexOf(page);
    if (place.isValid()) {
        contents->setCurrentIndex(place);
        contents->scrollTo(place);
    }
}

void HelpWindow::Search()
{
    // While the words are still being gathered the search waits for them.
    if (indexed && !SearchText->text().trimmed().isEmpty()) {
        searcher.search(SearchText->text());
    }
}

void HelpWindow::ShowSearchResults()
{
    SearchResults->clear();
    for (const QHelpSearchResult &result : searcher.searchResults(0, MostResults)) {
        auto *item = new QListWidgetItem(result.title(), SearchResults);
        item->setData(Qt::UserRole, result.url());
    }
    if (SearchResults->count() == 0) {
        SearchResults->addItem("No page holds these words.");
    }
}

// A modal window blocks all others but those that belong to it.
void HelpWindow::StandBesideModalWindow()
{
    QWidget *modal = QApplication::activeModalWidget();
    QWindow *owner = modal != nullptr ? modal->window()->windowHandle() : nullptr;
    winId(); // makes the window's handle
    if (owner != windowHandle()->transientParent()) {
        hide();
        windowHandle()->setTransientParent(owner);
    }
}

// The help opens on the screen of the window that asks for it, wherever it stood before.
void HelpWindow::MoveToScreenOf(const QWidget &asker)
{
    if (screen() != asker.screen() || !testAttribute(Qt::WA_Moved)) {
        const QRect room = asker.screen()->availableGeometry();
        const QRect middle(room.center() - QRect({}, size()).center(), size());
        move(KeptOnScreen(middle, room));
    }
}

void HelpWindow::ShowTopic(int context)
{
    const QWidget *asker = AskingWindow(); // none where the help stands alone
    StandBesideModalWindow();
    if (!isVisible() && asker != nullptr) {
        MoveToScreenOf(*asker);
    }
    Browser->setSource(PageOfContext(*help->Engine, context));
    Browser->setFocus();
    show();
    raise();
    activateWindow();
}

// ---- The seam --------------------------------------------------------------------------------

HelpWindow *OpenHelpWindow()
{
    return helpWindow;
}

void ShowHelpOf(const QString &folder, int context)
{
    if (helpWindow == nullptr) {
        std::unique_ptr<HelpCollection> help = OpenHelp(folder);
        if (help == nullptr) {
            ShowMessage("The help can't be shown, because its files are missing or damaged.\r\r"
                        "Installing Kelvarine again brings them back.");
            return;
        }
        helpWindow = new HelpWindow(std::move(help));
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [] { delete helpWindow; });
    }
    helpWindow->ShowTopic(context);
}

void ShowHelpTopic(int context)
{
    ShowHelpOf(HelpFolder(), context);
}

} // namespace kelvarine
