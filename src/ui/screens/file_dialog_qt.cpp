#include "ui/screens/file_dialog_qt.h"

#include "files/file_dialog.h"
#include "game/screens.h"
#include "outside/file_dialog.h"
#include "outside/help.h"
#include "paint/text.h"
#include "ui/screens/file_names.h"
#include "ui/window/front.h"
#include "ui/window/help_key.h"
#include "ui/window/placing.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

#include <array>

namespace kelvarine {

namespace {

constexpr QSize StartSize{600, 420};
constexpr QSize SmallestSize{290, 290};
constexpr int Margin = 4;

template <typename Control>
Control *Named(const char *name, Control *control)
{
    control->setObjectName(Text(name));
    return control;
}

QLabel *LabelFor(QWidget *control, const QString &text)
{
    auto *label = new QLabel(text, control->parentWidget());
    label->setBuddy(control);
    return label;
}

} // namespace

// ---- Building ------------------------------------------------------------------------------

FileDialog::FileDialog(QWidget *parent, std::size_t fileType)
    : QDialog(parent), lblFolder(Named("lblFolder", new QLabel(this))),
      dirDirectory(Named("dirDirectory", new QTreeView(this))),
      filFiles(Named("filFiles", new QListWidget(this))),
      txtFileName(Named("txtFileName", new QLineEdit(this))),
      cmbFileTypes(Named("cmbFileTypes", new QComboBox(this))),
      cmdOK(Named("cmdOK", new QPushButton("OK", this))),
      cmdCancel(Named("cmdCancel", new QPushButton("Cancel", this))),
      cmdHelp(Named("cmdHelp", new QPushButton("&Help", this)))
{
    setObjectName("frmFile");
    SetHelpContext(this, FileDialogTopic);
    setWindowTitle(Text(DialogCaption));
    BuildControls(fileType);
    BuildFolders();
    setLayout(Arrange());
    setMinimumSize(SmallestSize);
    resize(StartSize);
    if (FileDialogPlace.Width > 0) {
        OpenAt(*this, FileDialogPlace);
    }
    ShowFolder();
    ListFiles();
    Connect();
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
    filFiles->setAccessibleName("Files");
    lblFolder->setTextFormat(Qt::PlainText);
    // A long path must not widen the window.
    lblFolder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    cmdOK->setDefault(true);
    cmdCancel->setAutoDefault(false);
    cmdHelp->setAutoDefault(false);
}

void FileDialog::BuildFolders()
{
    folders.setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    folders.setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    folders.setRootPath(QDir::rootPath());
    dirDirectory->setModel(&folders);
    dirDirectory->header()->hide();
    for (int column = 1; column < folders.columnCount(); ++column) {
        dirDirectory->hideColumn(column);
    }
    dirDirectory->setAccessibleName("Folders");
}

QLayout *FileDialog::Arrange()
{
    auto *grid = new QGridLayout;
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->addWidget(lblFolder, 0, 0, 1, 3);
    grid->addWidget(LabelFor(dirDirectory, "Fol&ders:"), 1, 0);
    grid->addWidget(LabelFor(filFiles, "Fi&les:"), 1, 1);
    grid->addWidget(dirDirectory, 2, 0);
    grid->addWidget(filFiles, 2, 1, 1, 2);
    grid->addWidget(LabelFor(txtFileName, "File &name:"), 3, 0, Qt::AlignRight);
    grid->addWidget(txtFileName, 3, 1);
    grid->addWidget(cmdOK, 3, 2);
    grid->addWidget(LabelFor(cmbFileTypes, "File &types:"), 4, 0, Qt::AlignRight);
    grid->addWidget(cmbFileTypes, 4, 1);
    grid->addWidget(cmdCancel, 4, 2);
    grid->addWidget(cmdHelp, 5, 2);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    const std::array<QWidget *, 7> order{dirDirectory, filFiles,  txtFileName, cmbFileTypes,
                                         cmdOK,        cmdCancel, cmdHelp};
    for (std::size_t place = 1; place < order.size(); ++place) {
        setTabOrder(order[place - 1], order[place]);
    }
    return grid;
}

void FileDialog::Connect()
{
    connect(dirDirectory->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FileDialog::FolderChosen);
    connect(txtFileName, &QLineEdit::textEdited, this, &FileDialog::SearchTyped);
    connect(cmbFileTypes, &QComboBox::currentIndexChanged, this, [this](int index) {
        SelectFileType(static_cast<std::size_t>(index));
        ListFiles();
    });
    connect(cmdOK, &QPushButton::clicked, this, &FileDialog::PressOk);
    connect(cmdCancel, &QPushButton::clicked, this, &FileDialog::reject);
    connect(cmdHelp, &QPushButton::clicked, this, &FileDialog::PressHelp);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, &FileDialog::PressHelp);
    ConnectFiles();
}

void FileDialog::ConnectFiles()
{
    connect(filFiles, &QListWidget::itemSelectionChanged, this, &FileDialog::CopyName);
    connect(filFiles, &QListWidget::itemClicked, this, &FileDialog::CopyName);
    connect(filFiles, &QListWidget::itemDoubleClicked, this, &FileDialog::PressOk);
    filFiles->installEventFilter(this);
}

// ---- Folders and files ---------------------------------------------------------------------

void FileDialog::ShowFolder()
{
    const QModelIndex index = folders.index(ShownName(DialogFolder));
    dirDirectory->setCurrentIndex(index);
    dirDirectory->expand(index);
    nextTurn.setSingleShot(true);
    connect(&nextTurn, &QTimer::timeout, dirDirectory, [this] {
        dirDirectory->scrollTo(dirDirectory->currentIndex(), QTreeView::PositionAtCenter);
    });
    loading =
        connect(&folders, &QFileSystemModel::directoryLoaded, this, &FileDialog::FollowLoading);
}

// The tree fills up while the dialog is on view already. Each folder is sorted in the next turn of
// the event loop, and the one in hand comes last.
void FileDialog::FollowLoading(const QString &loaded)
{
    nextTurn.start();
    if (loaded == folders.filePath(dirDirectory->currentIndex())) {
        disconnect(loading);
    }
}

void FileDialog::FolderChosen(const QModelIndex &index)
{
    disconnect(loading);
    const QString path = folders.filePath(index);
    DialogFolder = NameBytes(path.endsWith(u'/') ? path : path + u'/');
    ListFiles();
}

void FileDialog::ListFiles()
{
    lblFolder->setText(ShownName(DialogFolder));
    const QSignalBlocker quiet(filFiles);
    filFiles->clear();
    for (const std::string &name : FilesIn(DialogFolder)) {
        if (IsListed(name)) {
            filFiles->addItem(ShownName(name));
        }
    }
}

bool FileDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == filFiles && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        DeleteSelected();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void FileDialog::CopyName()
{
    if (const QList<QListWidgetItem *> selected = filFiles->selectedItems(); !selected.empty()) {
        txtFileName->setText(selected.front()->text());
    }
}

void FileDialog::SearchTyped(const QString &typed)
{
    if (typed.isEmpty()) {
        filFiles->scrollToTop();
        return;
    }
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(filFiles->count()));
    for (int row = 0; row < filFiles->count(); ++row) {
        names.push_back(NameBytes(filFiles->item(row)->text()));
    }
    if (const auto entry = EntryBeginning(names, NameBytes(typed))) {
        filFiles->scrollToItem(filFiles->item(static_cast<int>(*entry)));
    }
}

void FileDialog::DeleteSelected()
{
    const QList<QListWidgetItem *> selected = filFiles->selectedItems();
    if (!selected.empty() && DeleteListedFile(NameBytes(selected.front()->text()))) {
        txtFileName->clear();
        ListFiles();
    }
}

// ---- Buttons -------------------------------------------------------------------------------

void FileDialog::PressOk()
{
    if (AcceptFileName(NameBytes(txtFileName->text()))) {
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
    QDialog::done(result);
}

bool RunFileDialog(std::size_t fileType)
{
    FileDialog dialog(AskingWindow(), fileType);
    return RunDialog(dialog) == QDialog::Accepted;
}

} // namespace kelvarine
