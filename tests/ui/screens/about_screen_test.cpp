#include "outside/screens.h"
#include "support/widget_modal.h"
#include "support/widget_program.h"

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

// Opens the screen and acts on it while it stands.
void WithAbout(const std::function<void(QDialog &)> &action)
{
    const int looks = WhileModal<QDialog>(ShowAboutScreen, [&](QDialog &screen) {
        action(screen);
        EXPECT_FALSE(screen.isVisible());
        screen.reject(); // so that a screen that stayed does not hold the test
    });
    EXPECT_EQ(looks, 1);
}

} // namespace

TEST(AboutScreen, TellsNameVersionAndLicence)
{
    const Program program;
    QCoreApplication::setApplicationVersion("7.8.9");
    WithAbout([](QDialog &screen) {
        EXPECT_EQ(screen.objectName(), "frmAbout");
        EXPECT_EQ(screen.findChild<QLabel *>("lblName")->text(), "Kelvarine");
        EXPECT_EQ(screen.findChild<QLabel *>("lblVersion")->text(), "Version 7.8.9");
        const QString licence = screen.findChild<QPlainTextEdit *>("txtLicence")->toPlainText();
        EXPECT_TRUE(licence.startsWith("MIT License\n\nCopyright (c) 2026"))
            << licence.toStdString();
        EXPECT_TRUE(licence.contains("free of charge, to any person obtaining a copy of this "));
        screen.reject();
    });
}

TEST(AboutScreen, OkIsTheDefaultAndCloses)
{
    const Program program;
    WithAbout([](QDialog &screen) {
        auto *ok = screen.findChild<QPushButton *>();
        EXPECT_TRUE(ok->isDefault());
        EXPECT_TRUE(ok->hasFocus() || screen.focusWidget() == ok);
        QTest::keyClick(&screen, Qt::Key_Return);
    });
    WithAbout([](QDialog &screen) {
        QTest::mouseClick(screen.findChild<QPushButton *>(), Qt::LeftButton);
    });
}

TEST(AboutScreen, EscapeCloses)
{
    const Program program;
    WithAbout([](QDialog &screen) { QTest::keyClick(&screen, Qt::Key_Escape); });
}

} // namespace kelvarine::testing
