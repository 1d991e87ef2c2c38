#pragma once

#include "ui/widgets/height_animation.h"

#include <QTimer>
#include <QWidget>

/// Shows as much of its content as its own height allows, and moves that height to the content's in small steps. The
/// content always has its full size; it is revealed or covered. Main thread only.
class ExpandableContainerWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ExpandableContainerWidget(QWidget* parent = nullptr);

    /// Becomes the content's parent and takes its height at once. The content must not be deleted before the
    /// container.
    void set_content(QWidget* content);
    /// Takes the content's height at once; an animation under way goes on.
    void take_content_height();

    QSize sizeHint() const override;

public slots:
    /// Starts moving to the content's height, from wherever an animation under way has come.
    void animate_to_new_height();
    void tick();

protected:
    /// Null before the first one.
    QWidget* content() const { return content_; }

    void resizeEvent(QResizeEvent* event) override;

private:
    void set_current_height(int height);
    void fit_content(int content_width);

    int current_height_ = 0;
    QWidget* content_ = nullptr;
    QTimer timer_;
    HeightAnimation animation_;
};
