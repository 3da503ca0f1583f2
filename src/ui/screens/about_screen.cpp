// The screen that tells name, version and licence of the program.
#include "outside/messages.h"
#include "outside/screens.h"
#include "paint/text.h"
#include "ui/window/front.h"

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
    return box;
}

} // namespace

void ShowAboutScreen()
{
    QDialog screen(AskingWindow());
    screen.setObjectName("frmAbout");
    screen.setWindowTitle(QCoreApplication::translate("About", "About Kelvarine"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &screen);
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &screen, &QDialog::accept);
    auto *layout = new QVBoxLayout(&screen);
    layout->addWidget(NameLabel(&screen));
    layout->addWidget(VersionLabel(&screen));
    layout->addWidget(LicenceBox(&screen));
    layout->addWidget(buttons);
    ok->setFocus();
    RunDialog(screen);
}

} // namespace kelvarine
