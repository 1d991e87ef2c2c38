#pragma once

#include "ui/chips/chip_matching.h"
#include "ui/chips/item_part_draw_fonts.h"
#include "ui/chips/part_draws.h"

#include <QSize>

class ItemPartsList;

using Chips = std::vector<ChipPointer>;

/// The chips of a parts editor: a palette of the types that can be added, and the row of a template's parts. It
/// places them, moves them smoothly, and edits the row; what is painted and typed is the widget's. Main thread only.
class ChipBoard final : public QObject
{
    Q_OBJECT

public:
    /// `label_width` is the room for what stands before the palette, in pixels. Its parent is the host of its chips.
    ChipBoard(const std::vector<ItemPartBase::Type>& palette, const QFont& font, int label_width,
              QObject* parent = nullptr);

    /// Measures everything anew, and places it without animation.
    void set_font(const QFont& font, int label_width);

    const ItemPartDrawFonts& fonts() const { return fonts_; }

    const ChipMetrics& metrics() const { return fonts_.metrics(); }

    int label_width() const { return label_width_; }

    QSize size_hint() const { return size_hint_; }

    const Chips& palette() const { return palette_; }

    const Chips& row() const { return row_; }

    /// -1 for a chip that isn't in the row.
    int row_index_of(const ItemPartBaseDraw& chip) const;

    /// Palette chips first; null where no chip is.
    ChipPointer chip_at(QPointF point) const;

    /// -1 while none is selected.
    int selected_index() const { return selected_; }

    /// Null while none is selected.
    ChipPointer selected_chip() const { return chip_in_row(selected_); }

    /// -1 or an index out of range selects none.
    void select(int index);

    /// Shows another template. What it shares with the one before stays in place, the rest slides in from the
    /// beginning of the row.
    void set_parts(const ItemPartsList& parts);

    /// The template has changed, by an edit or by undo: as few chips as possible jump, new ones come from the
    /// palette. The selected chip stays selected.
    void sync_parts(const ItemPartsList& parts);

    /// Whether the row shows just these parts, whatever their settings.
    bool shows(const ItemPartsList& parts) const;

    /// Adds a part, whose chip comes from `origin`, before the chip at an index or at the end, and selects it.
    void add(const std::shared_ptr<ItemPartBase>& part, int index, const QRectF& origin);
    /// Moves a chip before another one, or to the end, and selects it. Nothing when it stands there already.
    void reorder(int index, int target);
    void remove(int index);

    /// Leaves a chip where it is while the user has it in his hand; null for none.
    void hold(const ItemPartBaseDraw* chip) { held_ = chip; }

    /// Moves every chip to its place in the row, each as wide as its texts now ask for.
    void relayout();
    /// Moves a chip back to where it belongs.
    void send_home(ItemPartBaseDraw& chip);
    /// Has a palette chip grow out of the middle of its place.
    void regrow(const ChipPointer& chip);

    /// Moves what is on its way; false when all have arrived.
    bool tick();

signals:
    void repaint_needed(const QRectF& area);
    void size_hint_changed();
    void animation_needed();
    /// The row has been edited; `text` names the step. The template isn't changed yet.
    void edited(const QString& text);
    void selection_changed();
    /// It tells something else of its part now.
    void chip_renamed(ItemPartBaseDraw& chip);

private:
    ChipPointer hosted(ChipPointer chip) const;
    ChipPointer chip_in_row(int index) const;
    PartsInOrder shown_parts() const;
    void animate(const ChipPointer& chip, const QRectF& target);
    QRectF origin_of(ItemPartBase::Type type) const;
    std::vector<QRectF> palette_places() const;
    std::vector<QRectF> row_places() const;
    void update_size_hint();
    void repaint_all();
    Chips synced_row(const ItemPartsList& parts) const;

    ItemPartDrawFonts fonts_;
    int label_width_;
    Chips palette_;
    Chips row_;
    Chips animating_;
    QSize size_hint_;
    int selected_ = -1;
    const ItemPartBaseDraw* held_ = nullptr; ///< to compare with alone
};
