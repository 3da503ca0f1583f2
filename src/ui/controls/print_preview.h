// The picture of the page on the print tab, which tools are told in words.
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

    // Takes the page as it is now, in its picture and in words.
    void ShowPage();

    // Shows the page in a light look instead of the player's, which stays as it is.
    void ShowLight(bool on);

signals:
    // The player's look covers another share of the page with ink, in hundredths; of a colour
    // counts the ink that there is most of.
    void InkChanged(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void TakePictures();
    void MeasureInk();

    QImage picture; // of the game or of an empty grid, as it was when Grid was the player's last
    QImage lightPicture;
    bool light = false;
    int ink = 0; // percent
};

} // namespace kelvarine
