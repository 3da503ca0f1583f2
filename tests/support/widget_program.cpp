#include "support/widget_program.h"

#include "game/lifecycle.h"
#include "grid/history.h"
#include "program/defaults.h"
#include "support/widget_modal.h"

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

void UseFoldersIn(const QTemporaryDir &home)
{
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath("data").toUtf8());
}

QTemporaryDir &Home()
{
    static std::unique_ptr<QTemporaryDir> home;
    home = std::make_unique<QTemporaryDir>();
    return *home;
}

} // namespace

Program::Program()
{
    UseFoldersIn(Home());
    SetDefaults();
    Main = std::make_unique<MainWindow>();
    StartGame(NewGame);
    GameModified = False;
    Main->resize(760, 830);
    Main->show();
    // There is no keyboard to ask: the toolkit takes the modifiers of the latest key for those
    // held.
    QTest::keyEvent(QTest::Release, Main->windowHandle(), Qt::Key_F35);
    QCoreApplication::processEvents();
}

Program::~Program() = default;

BoxRecord AnswerBoxes(const std::function<void()> &action,
                      std::vector<QMessageBox::StandardButton> answers)
{
    BoxRecord record;
    std::size_t answered = 0;
    WhileModal<QMessageBox>(action, [&](QMessageBox &box) {
        record.Texts.push_back(box.text().toStdString());
        record.Titles.push_back(box.windowTitle().toStdString());
        QAbstractButton *button =
            answered < answers.size() ? box.button(answers[answered]) : box.escapeButton();
        ++answered;
        if (button != nullptr) {
            button->click();
        } else {
            box.reject();
        }
    });
    EXPECT_GE(answered, answers.size()) << "fewer boxes than answers";
    return record;
}

} // namespace kelvarine::testing
