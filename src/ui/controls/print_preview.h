// The picture of the page on the print tab.
#pragma once

#include <QImage>
#include <QWidget>

namespace kelvarine {

class PrintPreview : public QWidget {
    Q_OBJECT

public:
    explicit PrintPreview(QWidget *parent);

    // Takes the proportions of the printable area.
    void FitPage();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage picture; // of the game or of an empty grid, as it was when Grid was the player's last
};

} // namespace kelvarine
