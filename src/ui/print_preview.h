// The picture of the page on the print tab.
#pragma once

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
};

} // namespace kelvarine
