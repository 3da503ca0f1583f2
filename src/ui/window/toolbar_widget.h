// picToolbar: the toolbar as the player sees it. What its buttons say and do is told elsewhere.
#pragma once

#include <QPushButton>

#include <cstdint>
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

private:
    [[nodiscard]] QSize CaptionSize(const QFont &letters) const;

    std::int32_t number;
};

class ToolbarWidget : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarWidget(QWidget *parent);

    // Shows all buttons as they are now.
    void Update();

private:
    std::vector<ToolButtonWidget *> buttons;
};

} // namespace kelvarine
