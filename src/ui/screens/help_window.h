// The window of the help: contents, index and search on the left, the page on the right. It stands
// beside the game, and beside a modal window that asked for it, without blocking anything.
#pragma once

#include "ui/screens/help_collection.h"

#include <QHelpSearchEngine>
#include <QMainWindow>
#include <QTextBrowser>

class QLineEdit;
class QListWidget;
class QPagedPaintDevice;
class QSplitter;
class QTabWidget;

namespace kelvarine {

// The pages, read out of the compiled help.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    HelpBrowser(const QHelpEngineCore &helpEngine, QWidget *parent);

    // Makes text and pictures larger or smaller by a step, or puts them back to where they were.
    void Zoom(int steps);
    void ResetZoom();

    // Prints the page on view, black on white, pictures too. False when a printer takes nothing.
    bool PrintOn(QPagedPaintDevice &paper);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QVariant Picture(const QUrl &name) const;
    [[nodiscard]] bool IsDark() const;
    [[nodiscard]] int UsualSide() const;
    void LoadAgain();

    const QHelpEngineCore &engine;
    int zoom = 0;
    // What the pictures on view were made for.
    double pictureRatio = 0;
    bool pictureDark = false;
    int pictureSide = 0;    // before the zoom
    bool isOnPaper = false; // while the page is being printed
};

class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpWindow(std::unique_ptr<HelpCollection> opened);
    ~HelpWindow() override;

    // Comes to the front and shows the topic of a context number.
    void ShowTopic(int context);

    HelpBrowser *const Browser;
    QTabWidget *const Tabs;
    QLineEdit *const IndexText;
    QLineEdit *const SearchText;
    QListWidget *const SearchResults;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void BuildToolBar();
    void FocusPane();
    QWidget *BuildContents();
    QWidget *BuildIndex();
    QWidget *BuildSearch();
    void OpenLink(const QUrl &link);
    void CopyPosition(const std::string &position);
    void Print();
    void PageChanged(const QUrl &page);
    void Search();
    void ShowSearchResults();
    void StandBesideModalWindow();
    void MoveToScreenOf(const QWidget &asker);

    std::unique_ptr<HelpCollection> help;
    QHelpSearchEngine searcher;
    bool indexed = false;
};

// The one help window, or null before it is first asked for.
HelpWindow *OpenHelpWindow();

// Shows the help that lies in a folder at the topic of a context number; a message when it is not
// there.
void ShowHelpOf(const QString &folder, int context);

} // namespace kelvarine
