// picToolbar: the toolbar as the player sees it. What its buttons say and do is told elsewhere.
#pragma once

#include <QAccessible>
#include <QPushButton>

#include <cstdint>
#include <string>
#include <vector>

namespace kelvarine {

// cmdTool: acts on the press of any mouse button, not on the release, and on any key while it has
// the focus, save for those that go with others.
class ToolButtonWidget : public QPushButton {
    Q_OBJECT

public:
    ToolButtonWidget(std::int32_t index, QWidget *parent);

    // Shows the button's caption, colour, tip and place as they are now.
    void Update();

    // What stands on the button. It is no text of the toolkit's, which would tell listening tools
    // of each sign that comes and goes.
    [[nodiscard]] QString Caption() const;

    // Which of the toolbar's buttons this is.
    [[nodiscard]] std::int32_t Number() const
    {
        return number;
    }

    // The font in which the caption fits on the button.
    [[nodiscard]] QFont CaptionFont() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] QSize CaptionSize(const QFont &letters) const;
    void TellWords();
    void TellUse();
    void TellChange(QString &told, const std::string &words, QAccessible::Event kind);

    std::int32_t number;
    QString caption;
    QString toldName; // to listening tools
    QString toldUse;
};

class ToolbarWidget : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarWidget(QWidget *parent);

    // Shows all buttons as they are now.
    void Update();

protected:
    // A finger presses the button that it means, which may stand a little beside it.
    bool event(QEvent *event) override;

private:
    std::vector<ToolButtonWidget *> buttons;
};

} // namespace kelvarine
