// The file dialog in a test: a showing in a folder of the test's own, and what a player does in it.
#pragma once

#include "files/file_dialog.h"
#include "support/temporary_folder.h"
#include "support/widget_program.h"
#include "ui/screens/file_dialog_qt.h"
#include "ui/screens/file_list.h"
#include "ui/screens/folder_tree.h"

#include <QLineEdit>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

// A showing of the dialog in a folder of the test's own.
class FileDialogWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        DialogFolder = Folder.Path();
    }

    // Opens a showing, in place of one before.
    void Show(std::string_view caption, std::size_t fileType = SudokuFiles)
    {
        Dialog.reset();
        DialogCaption = caption;
        SelectFileType(fileType);
        Dialog = std::make_unique<FileDialog>(Running.Main.get(), fileType);
        Dialog->open();
        QCoreApplication::processEvents();
    }

    template <typename Control>
    Control *Find(const char *name) const
    {
        return Dialog->findChild<Control *>(QString::fromLatin1(name));
    }

    [[nodiscard]] QLineEdit *Name() const
    {
        return Find<QLineEdit>("txtFileName");
    }

    [[nodiscard]] FileList *Files() const
    {
        return Find<FileList>("filFiles");
    }

    [[nodiscard]] FolderTree *Tree() const
    {
        return Find<FolderTree>("dirDirectory");
    }

    // Whether the tree shows its current folder, from the beginning of its name.
    [[nodiscard]] bool FolderInView() const
    {
        const QRect place = Tree()->visualItemRect(Tree()->currentItem());
        return Tree()->viewport()->rect().contains(place.left(), place.center().y());
    }

    [[nodiscard]] QModelIndex Entry(int row) const
    {
        return Files()->model()->index(row, 0);
    }

    // Types into the name, whatever stands there, and presses Enter.
    void Type(const char *text) const
    {
        Name()->setFocus();
        Name()->selectAll();
        QTest::keyClicks(Name(), QString::fromUtf8(text));
    }

    void TypeAndEnter(const char *text) const
    {
        Type(text);
        QTest::keyClick(Name(), Qt::Key_Return);
    }

    [[nodiscard]] std::vector<std::string> Listed() const
    {
        std::vector<std::string> names;
        for (int row = 0; row < Files()->model()->rowCount(); ++row) {
            names.push_back(Entry(row).data().toString().toStdString());
        }
        return names;
    }

    void ClickEntry(int row, bool twice = false) const
    {
        const QPoint place = Files()->visualRect(Entry(row)).center();
        QTest::mouseClick(Files()->viewport(), Qt::LeftButton, {}, place);
        if (twice) {
            QTest::mouseDClick(Files()->viewport(), Qt::LeftButton, {}, place);
        }
    }

    [[nodiscard]] bool InView(int row) const
    {
        return Files()->viewport()->rect().contains(Files()->visualRect(Entry(row)).center());
    }

    Program Running;
    TemporaryFolder Folder;
    std::unique_ptr<FileDialog> Dialog;
};

// Runs an action that opens one message box, and presses a key in it. Its text.
std::string PressInBox(const std::function<void()> &action, Qt::Key key);

} // namespace kelvarine::testing
