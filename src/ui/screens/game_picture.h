// The game in a file as the file dialog shows it beside the list: a small board, and how hard, how
// far and how long it is.
#pragma once

#include "files/game_summary.h"

#include <QWidget>

#include <optional>

namespace kelvarine {

class GamePicture : public QWidget {
    Q_OBJECT

public:
    explicit GamePicture(QWidget *parent);

    // Shows the file by this path; an empty path shows nothing.
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

    std::optional<GameSummary> game;
    QString words_;
};

} // namespace kelvarine
