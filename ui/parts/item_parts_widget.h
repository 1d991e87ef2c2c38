#pragma once

#include "ui/chips/chip_drag.h"
#include "ui/parts/template_edits.h"

#include <QTimer>
#include <QWidget>

/// A template as a row of chips below a palette of types, to be put together by mouse and by keyboard: Tab reaches
/// the palette and then the row, arrows go from chip to chip, Enter and the space bar add from the palette and select
/// in the row, Ctrl with an arrow moves the selected chip, Delete and Backspace take it out, Escape ends a drag.
/// Every change is one step of undo. Main thread only.
class ItemPartsWidget final : public QWidget
{
    Q_OBJECT

public:
    /// `edits` outlives the widget; its template for folders asks for another hint in an empty row.
    ItemPartsWidget(const std::vector<ItemPartBase::Type>& palette, TemplateEdits& edits, QWidget* parent = nullptr);

    /// Another command's template is shown; no chip is selected.
    void set_parts(const ItemPartsList& parts);
    /// The template shown was changed. A drag under way ends without effect, unless the parts are the same.
    void sync_parts(const ItemPartsList& parts);

    /// -1 while no chip is selected.
    int selected_index() const { return board_.selected_index(); }

    /// Nothing for an index out of range.
    void delete_part(int index);

    const ChipBoard& board() const { return board_; }

    /// Where a chip stands on the widget, which a right-to-left layout mirrors.
    QRectF shown_rect(const QRectF& rect) const;

    /// What a click on it does: adds a part of its type, or selects it.
    void activate(const ItemPartBaseDraw& chip);
    /// Takes a chip out of the row.
    void remove(const ItemPartBaseDraw& chip);

    /// Puts the focus on the row.
    void take_focus();

    /// The chip that keys go to; null while there is none.
    ChipPointer current_chip() const;

    QSize sizeHint() const override { return board_.size_hint(); }

    QSize minimumSizeHint() const override { return board_.size_hint(); }

signals:
    void selection_changed();
    /// This part of the widget should be seen.
    void reveal(const QRect& area);

public slots:
    /// Moves what is on its way.
    void tick();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// Where the keyboard is at work.
    enum class Zone { Palette, Row };

    static QString palette_label();
    QFont label_font() const;
    int label_width() const;
    QPointF board_point(const QPointF& point) const;
    QRect pixels_of(const QRectF& area) const;
    void repaint_chip(const QRectF& area);
    void push_parts_undo(const QString& text);
    void note_selection();
    void take_scheme_colours();

    /// Where keys go: never to a row without chips.
    Zone zone() const { return board_.row().empty() ? Zone::Palette : zone_; }

    bool is_drags_escape(const QKeyEvent& event) const;
    bool handle_row_key(const QKeyEvent& event);
    bool handle_palette_key(const QKeyEvent& event);
    int step_of(const QKeyEvent& event) const;
    int moved_cursor(const QKeyEvent& event, int cursor, const Chips& chips) const;
    void set_zone(Zone zone);
    void show_current_chip();
    void reveal_chip(const ChipPointer& chip);
    void add(ItemPartBase::Type type, const QRectF& origin);
    void duplicate(const ItemPartBaseDraw& chip);
    void show_menu(const ChipPointer& chip, const QPoint& global);
    void move_chip(int index, int step);

    void paint_row_hint(QPainter& painter) const;
    void paint_chip(QPainter& painter, const ItemPartBaseDraw& chip) const;
    void paint_chips(QPainter& painter, const QRect& area) const;
    void paint_focus(QPainter& painter) const;

    TemplateEdits& edits_;
    ChipBoard board_;
    ChipDrag drag_;
    QTimer animation_timer_;
    std::weak_ptr<ItemPartBaseDraw> told_selection_; ///< the one that screen readers know
    Zone zone_ = Zone::Palette;
    bool by_keys_ = false; ///< the user's last step, so that he wants to see where keys go
    int palette_cursor_ = 0;
    int row_cursor_ = 0;
};
