#include "ui/screens/file_dialog_qt.h"

#include "files/dialog_folders.h"
#include "files/file_dialog.h"
#include "game/screens.h"
#include "outside/file_dialog.h"
#include "outside/help.h"
#include "paint/text.h"
#include "ui/screens/file_list.h"
#include "ui/screens/file_names.h"
#include "ui/screens/folder_tree.h"
#include "ui/screens/game_picture.h"
#include "ui/screens/name_box.h"
#include "ui/screens/places.h"
#include "ui/window/front.h"
#include "ui/window/help_key.h"
#include "ui/window/placing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>

#include <array>

namespace kelvarine {

namespace {

constexpr QSize StartSize{820, 520};
constexpr QSize SmallestSize{290, 290};
constexpr int Margin = 4;

// Below these the lists need all the room there is.
constexpr int WidthForPicture = 560;
constexpr QSize SizeForPlaces{420, 360};

constexpr int ChangesAtOnce = 50; // milliseconds for which they are gathered

template <typename Control>
Control *Named(const char *name, Control *control)
{
    control->setObjectName(Text(name));
    return control;
}

QLabel *LabelFor(QWidget *control, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setBuddy(control);
    return label;
}

// A list under its label.
QWidget *Labelled(QWidget *control, const QString &text)
{
    auto *part = new QWidget;
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Margin);
    column->addWidget(LabelFor(control, text, part));
    column->addWidget(control, 1);
    return part;
}

Hidden HiddenNow()
{
    return HiddenFilesShown != False ? Hidden::Included : Hidden::LeftOut;
}

// The watcher takes paths as text; one that is no text goes unwatched.
void WatchFolder(QFileSystemWatcher &watcher, const std::string &folder)
{
    if (const QStringList former = watcher.directories(); !former.empty()) {
        watcher.removePaths(former);
    }
    const QString path = ShownName(folder);
    if (QFile::encodeName(path).toStdString() == folder) {
        watcher.addPath(path);
    }
}

} // namespace

// ---- Building ------------------------------------------------------------------------------

FileDialog::FileDialog(QWidget *parent, std::size_t fileType)
    : QDialog(parent), lblFolder(Named("lblFolder", new QLabel(this))),
      cmdParent(Named("cmdParent", new QToolButton(this))),
      cmdNewFolder(Named("cmdNewFolder", new QToolButton(this))),
      lists(new QSplitter(Qt::Horizontal, this)), drvDrive(Named("drvDrive", new PlaceList(this))),
      dirDirectory(Named("dirDirectory", new FolderTree(this))),
      filFiles(Named("filFiles", new FileList(this))),
      lblUnread(Named("lblUnread", new QLabel(this))),
      picGame(Named("picGame", new GamePicture(this))),
      txtFileName(Named("txtFileName", new NameBox(this))),
      cmbFileTypes(Named("cmbFileTypes", new QComboBox(this))),
      chkHidden(Named("chkHidden", new QCheckBox("Show h&idden files", this))),
      cmdOK(Named("cmdOK", new QPushButton("OK", this))),
      cmdCancel(Named("cmdCancel", new QPushButton("Cancel", this))),
      cmdHelp(Named("cmdHelp", new QPushButton("&Help", this)))
{
    setObjectName("frmFile");
    SetHelpContext(this, FileDialogTopic);
    setWindowTitle(Text(DialogCaption));
    BuildControls(fileType);
    BuildTools();
    setLayout(Arrange());
    SetTabOrder();
    setMinimumSize(SmallestSize);
    resize(StartSize);
    if (FileDialogPlace.Width > 0) {
        OpenAt(*this, FileDialogPlace);
    }
    drvDrive->ShowPlaces(MountedVolumes());
    dirDirectory->SetHidden(HiddenNow());
    Connect();
    GoTo(DialogFolder);
    txtFileName->setFocus();
}

void FileDialog::BuildControls(std::size_t fileType)
{
    for (const std::string_view type : FileTypes) {
        cmbFileTypes->addItem(Text(type));
    }
    cmbFileTypes->setCurrentIndex(static_cast<int>(fileType));
    cmbFileTypes->setAccessibleName("File types");
    txtFileName->setText(ShownName(DialogName));
    txtFileName->selectAll();
    txtFileName->setAccessibleName("File name");
    drvDrive->setAccessibleName("Places");
    dirDirectory->setAccessibleName("Folders");
    filFiles->setAccessibleName("Files");
    lblFolder->setTextFormat(Qt::PlainText);
    lblUnread->setTextFormat(Qt::PlainText);
    lblUnread->setWordWrap(true);
    // A long path must not widen the window.
    lblFolder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cmdOK->setDefault(true);
    cmdCancel->setAutoDefault(false);
    cmdHelp->setAutoDefault(false);
}

void FileDialog::BuildTools()
{
    cmdParent->setIcon(style()->standardIcon(QStyle::SP_FileDialogToParent));
    cmdParent->setToolTip("To the folder above (Alt+Up, or Backspace in the lists)");
    cmdParent->setAccessibleName("Folder above");
    cmdParent->setShortcut(Qt::ALT | Qt::Key_Up);
    cmdNewFolder->setIcon(style()->standardIcon(QStyle::SP_FileDialogNewFolder));
    cmdNewFolder->setToolTip("Make a new folder here (Ctrl+Shift+N)");
    cmdNewFolder->setAccessibleName("New folder");
    cmdNewFolder->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    for (QToolButton *button : {cmdParent, cmdNewFolder}) {
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoRaise(true);
    }
    chkHidden->setToolTip("Files and folders whose names begin with a point (Ctrl+H)");
    chkHidden->setChecked(HiddenFilesShown != False);
}

QLayout *FileDialog::ArrangeHead()
{
    auto *head = new QHBoxLayout;
    head->addWidget(lblFolder, 1);
    head->addWidget(cmdParent);
    head->addWidget(cmdNewFolder);
    return head;
}

void FileDialog::ArrangeLists()
{
    auto *folders = new QSplitter(Qt::Vertical, lists);
    placesPart = Labelled(drvDrive, "&Places:");
    folders->addWidget(placesPart);
    folders->addWidget(Labelled(dirDirectory, "Fol&ders:"));
    folders->setStretchFactor(1, 1);
    folders->setSizes({150, 250});
    lists->addWidget(folders);
    QWidget *files = Labelled(filFiles, "Fi&les:");
    files->layout()->addWidget(lblUnread);
    lists->addWidget(files);
    lists->addWidget(picGame);
    for (int part = 0; part < lists->count(); ++part) {
        lists->setCollapsible(part, false);
    }
    lists->setStretchFactor(1, 1);
    lists->setSizes({200, 420, picGame->sizeHint().width()});
    for (QWidget *list : {static_cast<QWidget *>(drvDrive), static_cast<QWidget *>(dirDirectory),
                          static_cast<QWidget *>(filFiles)}) {
        list->setMinimumSize(90, 60);
    }
}

QLayout *FileDialog::Arrange()
{
    ArrangeLists();
    auto *grid = new QGridLayout;
    grid->setContentsMargins(2 * Margin, Margin, 2 * Margin, 2 * Margin);
    grid->addLayout(ArrangeHead(), 0, 0, 1, 3);
    grid->addWidget(lists, 1, 0, 1, 3);
    grid->addWidget(LabelFor(txtFileName, "File &name:", this), 2, 0, Qt::AlignRight);
    grid->addWidget(txtFileName, 2, 1);
    grid->addWidget(cmdOK, 2, 2);
    grid->addWidget(LabelFor(cmbFileTypes, "File &types:", this), 3, 0, Qt::AlignRight);
    grid->addWidget(cmbFileTypes, 3, 1);
    grid->addWidget(cmdCancel, 3, 2);
    grid->addWidget(chkHidden, 4, 1);
    grid->addWidget(cmdHelp, 4, 2);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

void FileDialog::SetTabOrder()
{
    const std::array<QWidget *, 11> order{cmdParent, cmdNewFolder, drvDrive,     dirDirectory,
                                          filFiles,  txtFileName,  cmbFileTypes, chkHidden,
                                          cmdOK,     cmdCancel,    cmdHelp};
    for (std::size_t place = 1; place < order.size(); ++place) {
        setTabOrder(order[place - 1], order[place]);
    }
}

void FileDialog::Connect()
{
    connect(txtFileName, &NameBox::textEdited, this, &FileDialog::SearchTyped);
    connect(txtFileName, &NameBox::Entered, this, &FileDialog::PressOk);
    connect(cmbFileTypes, &QComboBox::currentIndexChanged, this, [this](int index) {
        SelectFileType(static_cast<std::size_t>(index));
        ListFiles();
    });
    connect(cmdOK, &QPushButton::clicked, this, &FileDialog::PressOk);
    connect(cmdCancel, &QPushButton::clicked, this, &FileDialog::reject);
    connect(cmdHelp, &QPushButton::clicked, this, &FileDialog::PressHelp);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, &FileDialog::PressHelp);
    connect(new QShortcut(Qt::CTRL | Qt::Key_H, this), &QShortcut::activated, chkHidden,
            &QCheckBox::toggle);
    connect(chkHidden, &QCheckBox::toggled, this, &FileDialog::ShowHidden);
    ConnectFiles();
    ConnectFolders();
}

void FileDialog::ConnectFiles()
{
    connect(filFiles, &FileList::SelectionMoved, this, &FileDialog::CopyName);
    connect(filFiles, &FileList::clicked, this, &FileDialog::CopyName);
    connect(filFiles, &FileList::doubleClicked, this, &FileDialog::PressOk);
    connect(filFiles, &FileList::EnteredByKey, this, &FileDialog::EnterList);
    connect(filFiles, &FileList::DeletePressed, this, &FileDialog::DeleteSelected);
    connect(filFiles, &FileList::ParentWanted, this, &FileDialog::ParentWanted);
}

void FileDialog::ConnectFolders()
{
    connect(dirDirectory, &FolderTree::FolderChosen, this, &FileDialog::TakeFolder);
    connect(dirDirectory, &FolderTree::ParentWanted, this, &FileDialog::ParentWanted);
    // In a turn of its own, as the list is not to change under its own press.
    connect(drvDrive, &PlaceList::PlaceChosen, this, &FileDialog::PlaceWanted,
            Qt::QueuedConnection);
    connect(drvDrive, &PlaceList::VolumesChanged, this, [this] {
        drvDrive->ShowPlaces(MountedVolumes());
        ListSoon();
    });
    connect(cmdParent, &QToolButton::clicked, this, &FileDialog::ParentWanted);
    connect(cmdNewFolder, &QToolButton::clicked, this, &FileDialog::NewFolder);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, &FileDialog::ListSoon);
    changes.setSingleShot(true);
    changes.setInterval(ChangesAtOnce);
    connect(&changes, &QTimer::timeout, this, &FileDialog::FolderChanged);
}

void FileDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    picGame->setVisible(width() >= WidthForPicture);
    placesPart->setVisible(width() >= SizeForPlaces.width() && height() >= SizeForPlaces.height());
}

// ---- Folders -------------------------------------------------------------------------------

// Shows a folder in the tree and in the list.
void FileDialog::GoTo(const std::string &folder)
{
    dirDirectory->ShowFolder(folder);
    TakeFolder(folder);
}

void FileDialog::TakeFolder(const std::string &folder)
{
    DialogFolder = folder;
    lblFolder->setText(ShownName(folder));
    lblFolder->setToolTip(ShownName(folder));
    drvDrive->MarkFolder(folder);
    WatchFolder(watcher, folder);
    ListFiles();
}

// A place that cannot be read is told, and the one before stays.
void FileDialog::PlaceWanted(const std::string &folder)
{
    if (folder == DialogFolder) {
        return;
    }
    if (AgreeToEnter(folder)) {
        GoTo(folder);
    } else {
        drvDrive->MarkFolder(DialogFolder);
    }
}

void FileDialog::ParentWanted()
{
    GoTo(FolderAbove(DialogFolder));
}

void FileDialog::NewFolder()
{
    QInputDialog box(this);
    box.setWindowTitle("New folder");
    box.setLabelText("Name of the new folder:");
    if (RunDialog(box) != QDialog::Accepted) {
        return;
    }
    const std::string folder = MakeFolder(DialogFolder, NameBytes(box.textValue()));
    if (!folder.empty()) {
        dirDirectory->RefreshCurrent();
        GoTo(folder);
    }
}

void FileDialog::ShowHidden(bool shown)
{
    HiddenFilesShown = shown ? True : False;
    dirDirectory->SetHidden(HiddenNow());
    ListFiles();
}

// However fast changes come, the first of them is not put off for those behind it.
void FileDialog::ListSoon()
{
    if (!changes.isActive()) {
        changes.start();
    }
}

// Files or folders have come or gone, or the folder itself.
void FileDialog::FolderChanged()
{
    if (const std::string folder = NearestFolder(DialogFolder); folder != DialogFolder) {
        GoTo(folder);
    } else {
        ListFiles();
    }
    dirDirectory->RefreshCurrent();
}

// ---- Files ---------------------------------------------------------------------------------

void FileDialog::ListFiles()
{
    auto [entries, failure] = FilesIn(DialogFolder, HiddenNow());
    std::erase_if(entries, [](const FileEntry &entry) { return !IsListed(entry.Name); });
    filFiles->ExplainEmpty(failure.empty() ? Text("No files of this type here.")
                                           : "This folder cannot be read.\n" + Text(failure));
    lblUnread->setText("This folder cannot be read to its end.\n" + Text(failure));
    lblUnread->setVisible(!failure.empty() && !entries.empty());
    {
        const QSignalBlocker quiet(filFiles);
        filFiles->Show(std::move(entries));
    }
    ShowPicture();
}

void FileDialog::CopyName()
{
    if (const FileEntry *entry = filFiles->Selected()) {
        txtFileName->setText(entry->Shown);
    }
    ShowPicture();
}

// A name that was typed for saving is not lost by walking through the list.
void FileDialog::EnterList()
{
    if (DialogCaption == OpenGameCaption || txtFileName->text().isEmpty()) {
        CopyName();
    }
    ShowPicture();
}

void FileDialog::ShowPicture()
{
    const FileEntry *entry = filFiles->Selected();
    picGame->ShowFile(entry != nullptr ? DialogFolder + entry->Name : std::string());
}

void FileDialog::SearchTyped(const QString &typed)
{
    OfferFor(typed);
    if (typed.isEmpty()) {
        filFiles->scrollToTop();
        return;
    }
    std::vector<std::string> names;
    names.reserve(filFiles->Entries().size());
    for (const FileEntry &entry : filFiles->Entries()) {
        names.push_back(entry.Name);
    }
    if (const auto entry = EntryBeginning(names, NameBytes(typed))) {
        filFiles->ScrollToRow(static_cast<int>(*entry));
    }
}

// Behind a slash the folders and the files there are offered, else the files that are listed. A
// path that begins nowhere in the system is not one below the folder in hand, so nothing is offered
// there.
void FileDialog::OfferFor(const QString &typed)
{
    QStringList names;
    const qsizetype end = typed.lastIndexOf(u'/') + 1;
    const QString start = typed.left(end);
    if (end == 0) {
        for (const FileEntry &entry : filFiles->Entries()) {
            names.append(entry.Shown);
        }
    } else if (start.startsWith(u'/') || start.startsWith("~/")) {
        const std::string folder = TypedFolder(NameBytes(start), DialogFolder);
        for (const FileEntry &inner : FoldersIn(folder, HiddenNow()).Entries) {
            names.append(start + inner.Shown + u'/');
        }
        for (const FileEntry &file : FilesIn(folder, HiddenNow()).Entries) {
            if (IsListed(file.Name)) {
                names.append(start + file.Shown);
            }
        }
    }
    txtFileName->Offer(names);
}

void FileDialog::DeleteSelected()
{
    const FileEntry *entry = filFiles->Selected();
    if (entry != nullptr && DeleteListedFile(std::string(entry->Name))) {
        txtFileName->clear();
        ListFiles();
    }
}

// ---- Buttons -------------------------------------------------------------------------------

// A path to a folder leads there.
void FileDialog::PressOk()
{
    const std::string typed = NameBytes(txtFileName->text());
    if (const std::string folder = FolderMeant(typed); !folder.empty()) {
        if (AgreeToEnter(folder)) {
            txtFileName->clear();
            GoTo(folder);
        }
    } else if (AcceptFileName(typed)) {
        accept();
    }
}

void FileDialog::PressHelp()
{
    ShowHelpTopic(FileDialogTopic);
    txtFileName->setFocus();
}

void FileDialog::done(int result)
{
    KeepPlace(*this, FileDialogPlace);
    DialogName = NameBytes(txtFileName->text());
    picGame->ShowFile({});
    QDialog::done(result);
}

bool RunFileDialog(std::size_t fileType)
{
    FileDialog dialog(AskingWindow(), fileType);
    return RunDialog(dialog) == QDialog::Accepted;
}

} // namespace kelvarine
