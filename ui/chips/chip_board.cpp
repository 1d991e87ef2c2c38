#include "ui/chips/chip_board.h"

#include "engine/parts/item_parts_list.h"
#include "ui/widgets/easing.h"

#include <algorithm>

namespace {

std::vector<int> widths_of(const Chips& chips)
{
    std::vector<int> widths;
    widths.reserve(chips.size());
    for (const ChipPointer& chip : chips)
        widths.push_back(chip->width());
    return widths;
}

int index_in(const Chips& chips, const ItemPartBaseDraw& chip)
{
    const auto found = std::ranges::find(chips, &chip, &ChipPointer::get);
    return found == chips.end() ? -1 : static_cast<int>(found - chips.begin());
}

}

ChipBoard::ChipBoard(const std::vector<ItemPartBase::Type>& palette, const QFont& font, int label_width,
                     QObject* parent)
    : QObject(parent), fonts_(font), label_width_(label_width)
{
    for (const ItemPartBase::Type type : palette)
        palette_.push_back(hosted(make_palette_chip(type)));
    set_font(font, label_width);
}

void ChipBoard::set_font(const QFont& font, int label_width)
{
    fonts_ = ItemPartDrawFonts(font);
    label_width_ = label_width;
    for (Chips* chips : {&palette_, &row_})
        for (const ChipPointer& chip : *chips)
            chip->remeasure(fonts_);
    const auto put = [](const Chips& chips, const std::vector<QRectF>& places) {
        for (std::size_t i = 0; i < chips.size(); ++i)
            chips[i]->motion().set_rect(places[i]);
    };
    put(palette_, palette_places());
    put(row_, row_places());
    update_size_hint();
    repaint_all();
}

std::vector<QRectF> ChipBoard::palette_places() const
{
    return side_by_side(widths_of(palette_), label_width_ + ChipMetrics::gap, metrics().palette_top(),
                        metrics().head);
}

std::vector<QRectF> ChipBoard::row_places() const
{
    return side_by_side(widths_of(row_), ChipMetrics::gap, metrics().row_top(), metrics().chip());
}

void ChipBoard::update_size_hint()
{
    // The row's width has a gap before its first chip; the label's has it behind.
    const int width = std::max(label_width_ + row_width(widths_of(palette_)), row_width(widths_of(row_)));
    const QSize hint(width, metrics().height());
    if (hint == size_hint_)
        return;
    size_hint_ = hint;
    emit size_hint_changed();
}

void ChipBoard::repaint_all()
{
    // The widget's edges aren't known here: this is wider than any.
    constexpr double everywhere = 1 << 24;
    emit repaint_needed(QRectF(0, 0, everywhere, metrics().height()));
}

ChipPointer ChipBoard::hosted(ChipPointer chip) const
{
    chip->set_host(parent());
    return chip;
}

int ChipBoard::row_index_of(const ItemPartBaseDraw& chip) const
{
    return index_in(row_, chip);
}

ChipPointer ChipBoard::chip_at(QPointF point) const
{
    for (const Chips* chips : {&palette_, &row_})
        for (const ChipPointer& chip : *chips)
            // A palette chip that grows back into its place can be clicked again already.
            if ((chip->is_palette() ? chip->motion().goal() : chip->rect()).contains(point))
                return chip;
    return nullptr;
}

ChipPointer ChipBoard::chip_in_row(int index) const
{
    return index < 0 || index >= static_cast<int>(row_.size()) ? nullptr : row_[static_cast<std::size_t>(index)];
}

void ChipBoard::select(int index)
{
    const int wanted = chip_in_row(index) ? index : -1;
    for (const int changed : {selected_, wanted})
        if (const ChipPointer chip = chip_in_row(changed))
            emit repaint_needed(chip->rect());
    selected_ = wanted;
    emit selection_changed();
}

PartsInOrder ChipBoard::shown_parts() const
{
    PartsInOrder parts;
    parts.reserve(row_.size());
    for (const ChipPointer& chip : row_)
        parts.push_back(chip->part().get());
    return parts;
}

bool ChipBoard::shows(const ItemPartsList& parts) const
{
    return std::ranges::equal(row_, parts, {}, [](const ChipPointer& chip) { return chip->part(); });
}

void ChipBoard::set_parts(const ItemPartsList& parts)
{
    const Chips before = std::move(row_);
    Chips newcomers;
    row_.clear();
    for (const auto& part : parts) {
        const auto shown = std::ranges::find(before, part, [](const ChipPointer& chip) { return chip->part(); });
        row_.push_back(shown == before.end() ? newcomers.emplace_back(hosted(make_chip(part))) : *shown);
    }
    selected_ = -1;
    relayout();
    for (const ChipPointer& chip : newcomers)
        chip->motion().slide_in();
}

Chips ChipBoard::synced_row(const ItemPartsList& parts) const
{
    PartsInOrder wanted;
    for (const auto& part : parts)
        wanted.push_back(part.get());
    const std::vector<int> old_index = matched_chips(shown_parts(), wanted);
    Chips row;
    for (const auto& part : parts) {
        const ChipPointer old = chip_in_row(old_index[row.size()]);
        row.push_back(old ? old : hosted(make_chip(part)));
        row.back()->set_part(part);
        if (!old)
            row.back()->motion().set_rect(origin_of(part->type()));
    }
    return row;
}

void ChipBoard::sync_parts(const ItemPartsList& parts)
{
    const ChipPointer selected = selected_chip();
    const int selected_before = selected_;
    row_ = synced_row(parts);
    selected_ = selected ? row_index_of(*selected) : -1;
    relayout();
    if (selected_ != selected_before)
        emit selection_changed();
}

QRectF ChipBoard::origin_of(ItemPartBase::Type type) const
{
    const auto chip = std::ranges::find(palette_, type, [](const ChipPointer& each) { return each->type(); });
    return chip == palette_.end() ? QRectF() : (*chip)->rect();
}

void ChipBoard::add(const std::shared_ptr<ItemPartBase>& part, int index, const QRectF& origin)
{
    const ChipPointer chip = hosted(make_chip(part));
    chip->motion().set_rect(origin);
    const auto place = std::clamp(index, 0, static_cast<int>(row_.size()));
    row_.insert(row_.begin() + place, chip);
    selected_ = place;
    relayout();
    emit edited(tr("Add Item Part"));
    emit selection_changed();
}

void ChipBoard::reorder(int index, int target)
{
    const ChipPointer chip = chip_in_row(index);
    const int end = static_cast<int>(row_.size());
    if (!chip || target < 0 || target > end || target == index || target == index + 1)
        return;
    row_.erase(row_.begin() + index);
    selected_ = target > index ? target - 1 : target;
    row_.insert(row_.begin() + selected_, chip);
    relayout();
    emit edited(tr("Reorder Item Parts"));
    emit selection_changed();
}

void ChipBoard::remove(int index)
{
    if (!chip_in_row(index))
        return;
    row_.erase(row_.begin() + index);
    if (selected_ == index)
        selected_ = -1;
    else if (selected_ > index)
        --selected_;
    relayout();
    emit edited(tr("Delete Item Part"));
    emit selection_changed();
}

void ChipBoard::relayout()
{
    for (const ChipPointer& chip : row_)
        if (chip->refresh(fonts_))
            emit chip_renamed(*chip);
    const std::vector<QRectF> places = row_places();
    for (std::size_t i = 0; i < row_.size(); ++i)
        if (row_[i].get() != held_)
            animate(row_[i], places[i]);
    update_size_hint();
    repaint_all();
}

void ChipBoard::animate(const ChipPointer& chip, const QRectF& target)
{
    if (!chip->motion().animate_to(target, animation_clock()))
        return;
    if (std::ranges::find(animating_, chip) == animating_.end())
        animating_.push_back(chip);
    emit animation_needed();
}

void ChipBoard::send_home(ItemPartBaseDraw& chip)
{
    const bool on_palette = chip.is_palette();
    const Chips& chips = on_palette ? palette_ : row_;
    const int index = index_in(chips, chip);
    if (index < 0)
        return;
    const auto place = static_cast<std::size_t>(index);
    animate(chips[place], (on_palette ? palette_places() : row_places())[place]);
}

void ChipBoard::regrow(const ChipPointer& chip)
{
    const int index = index_in(palette_, *chip);
    if (index < 0)
        return;
    const QRectF home = palette_places()[static_cast<std::size_t>(index)];
    chip->motion().set_rect(QRectF(home.center(), QSizeF(-1, -1)));
    animate(chip, home);
}

bool ChipBoard::tick()
{
    const qint64 now = animation_clock();
    std::erase_if(animating_, [&](const ChipPointer& chip) { return !chip->motion().advance(now); });
    repaint_all();
    return !animating_.empty();
}
