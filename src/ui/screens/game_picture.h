// The game in a file as the file dialog shows it beside the list: a small board, and how hard it
// is, how many givens it has and how long it was played.
#pragma once

#include "files/game_summary.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <string>

namespace kelvarine {

class GamePicture : public QWidget {
    Q_OBJECT

public:
    explicit GamePicture(QWidget *parent);

    // Shows the file by this path, in a turn of the event loop to come; an empty path shows
    // nothing. The rating of another file ends, as nobody waits for it.
    void ShowFile(const std::string &path);

    // The words below the board, or in its place; lines are parted by line ends.
    [[nodiscard]] const QString &Words() const
    {
        return words_;
    }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect BoardPlace() const;
    void TakeTurn();
    void ShowNothing();
    void Read();

    std::optional<GameSummary> game;
    QString words_;
    QTimer turn_;
    std::string wanted_;
    std::string reading_; // empty while nothing is being read
    bool asked_ = false;  // since the reading began
};

} // namespace kelvarine
