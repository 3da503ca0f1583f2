// A table of texts with headings above and on the left. Who comes by keys walks it with the
// arrows, and assistive tools see a table.
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QLabel;

namespace kelvarine {

// A place in a table; line 0 is that of the headings.
struct TablePlace {
    int Row = 0;
    int Column = 0;

    friend constexpr bool operator==(const TablePlace &, const TablePlace &) = default;
};

class LabelTable : public QWidget {
    Q_OBJECT

public:
    LabelTable(QWidget *parent, const QString &spoken);

    // Adds a row of labels that are the table's children, each as long as the first.
    void AddRow(const std::vector<QLabel *> &labels);

    [[nodiscard]] int Rows() const; // with that of the headings
    [[nodiscard]] int Columns() const;
    [[nodiscard]] QLabel *At(TablePlace place) const;

    // Where the player is, from the first place that is no heading on.
    [[nodiscard]] TablePlace Place() const;

    // Takes the player to a place of the table, and the keyboard with it.
    void GoTo(TablePlace place);

    // The texts may have changed: tells tools which of them have.
    void TellTexts();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] TablePlace PlaceAfter(int key) const;
    void TellPlaceLater();
    void TellPlace();

    std::vector<std::vector<QLabel *>> rows;
    TablePlace current{1, 1};
    QStringList told; // the texts row by row, as tools know them
    bool placeIsToTell = false;
};

} // namespace kelvarine
