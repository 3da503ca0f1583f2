// The screen that tells what the program is, its version, that of the toolkit, and at a button's
// press the licence.
#include "outside/messages.h"
#include "outside/screens.h"
#include "paint/text.h"
#include "ui/window/front.h"
#include "ui/window/program_icon.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace kelvarine {

namespace {

constexpr QSize LicenceSize{460, 220};
constexpr QSize IconSize{64, 64};
constexpr int HeadGap = 16;
constexpr int WordsGap = 8;

// The licence without the line breaks inside its paragraphs, which the screen makes itself.
QString LicenceText()
{
    QFile file(Text(":/LICENSE"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    static const QRegularExpression breakInside("(?<!\n)\n(?!\n)");
    return QString::fromUtf8(file.readAll()).trimmed().replace(breakInside, Text(" "));
}

QLabel *NameLabel(QWidget *parent)
{
    auto *label = new QLabel(Text(ProgramName), parent);
    label->setObjectName("lblName");
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 2);
    label->setFont(font);
    return label;
}

QLabel *VersionLabel(QWidget *parent)
{
    const QString version = QCoreApplication::applicationVersion();
    auto *label =
        new QLabel(QCoreApplication::translate("About", "Version %1").arg(version), parent);
    label->setObjectName("lblVersion");
    return label;
}

QPlainTextEdit *LicenceBox(QWidget *parent)
{
    auto *box = new QPlainTextEdit(LicenceText(), parent);
    box->setObjectName("txtLicence");
    box->setAccessibleName(QCoreApplication::translate("About", "Licence"));
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setMinimumSize(LicenceSize);
    box->hide();
    return box;
}

QLabel *IconLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName("lblIcon");
    label->setPixmap(ProgramIcon().pixmap(IconSize, parent->devicePixelRatioF()));
    label->setAlignment(Qt::AlignTop);
    return label;
}

// Name, what it is and the versions, one below the other.
QLayout *MakeWords(QWidget *screen)
{
    auto *words = new QVBoxLayout;
    auto *about = new QLabel("A sudoku player, solver and game maker", screen);
    about->setObjectName("lblAbout");
    auto *toolkit = new QLabel(Text("Qt ") + Text(qVersion()), screen);
    toolkit->setObjectName("lblToolkit");
    words->addWidget(NameLabel(screen));
    words->addWidget(about);
    words->addSpacing(WordsGap);
    words->addWidget(VersionLabel(screen));
    words->addWidget(toolkit);
    words->addStretch();
    return words;
}

QDialogButtonBox *MakeButtons(QDialog *screen, QWidget *licence)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, screen);
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, screen, &QDialog::accept);
    auto *show = buttons->addButton("&Licence", QDialogButtonBox::ActionRole);
    show->setObjectName("cmdLicence");
    show->setCheckable(true);
    show->setAutoDefault(false);
    QObject::connect(show, &QPushButton::toggled, licence, &QWidget::setVisible);
    ok->setFocus();
    return buttons;
}

} // namespace

void ShowAboutScreen()
{
    QDialog screen(AskingWindow());
    screen.setObjectName("frmAbout");
    screen.setWindowTitle(QCoreApplication::translate("About", "About Kelvarine"));
    auto *layout = new QVBoxLayout(&screen);
    auto *head = new QHBoxLayout;
    head->setSpacing(HeadGap);
    head->addWidget(IconLabel(&screen));
    head->addLayout(MakeWords(&screen), 1);
    layout->addLayout(head);
    QPlainTextEdit *licence = LicenceBox(&screen);
    layout->addWidget(licence);
    layout->addWidget(MakeButtons(&screen, licence));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    RunDialog(screen);
}

} // namespace kelvarine
