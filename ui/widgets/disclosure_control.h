#pragma once

#include <QWidget>

/// What shows and hides something else: reached by Tab, operated by the left mouse button, the space bar and Enter,
/// and known to screen readers as a button that is expanded or collapsed. Main thread only.
class DisclosureControl : public QWidget
{
public:
    bool expanded() const { return expanded_; }

    /// Emits nothing.
    void set_expanded(bool expanded);

    /// What a click does.
    virtual void activate() = 0;

protected:
    explicit DisclosureControl(QWidget* parent);

    void draw_focus_mark(QPainter& painter) const;

    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool expanded_ = false;
};
