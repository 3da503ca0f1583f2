// A quiet bar below the times of a level: how long the average is, and how far the best one comes.
#pragma once

#include <QString>
#include <QWidget>

namespace kelvarine {

class TimeBar : public QWidget {
    Q_OBJECT

public:
    explicit TimeBar(QWidget *parent);

    // The times in seconds, and that which fills the bar. Without an average there is nothing to
    // see.
    void ShowTimes(int best, int average, int longest);

    // Parts of the whole width that the two times take; 0 where there is nothing to see.
    [[nodiscard]] double BestPart() const;
    [[nodiscard]] double AveragePart() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int bestTime = 0;
    int averageTime = 0;
    int longestTime = 0;
};

// Seconds of a time as the tables show it; 0 for a text that is none.
int SecondsOf(const QString &time);

} // namespace kelvarine
