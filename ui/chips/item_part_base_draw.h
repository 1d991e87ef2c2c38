#pragma once

#include "engine/parts/item_part_base.h"
#include "ui/chips/chip_geometry.h"
#include "ui/chips/option_segment.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QStaticText>

class ItemPartDrawFonts;
class QPainter;

/// A chip: a part of a template, or on the palette a type of part that can be added. It knows what its part looks
/// like and where it stands; it is no widget. Main thread only.
class ItemPartBaseDraw : public QObject
{
    Q_OBJECT

public:
    /// The type's tag.
    virtual int part_type() const = 0;
    /// Of its head, in the light scheme.
    virtual QColor color() const = 0;
    virtual QString title() const = 0;
    /// The line under the head. The pieces are short whatever the part holds.
    virtual OptionSegments option_segments() const = 0;

    /// Null on the palette.
    const std::shared_ptr<ItemPartBase>& part() const { return part_; }

    /// Of the class that the chip is made for.
    void set_part(std::shared_ptr<ItemPartBase> part) { part_ = std::move(part); }

    bool is_palette() const { return palette_; }

    ItemPartBase::Type type() const { return static_cast<ItemPartBase::Type>(part_type()); }

    /// Takes title and options from the part as it is now; false when they are the same as before.
    bool refresh(const ItemPartDrawFonts& fonts);

    /// Measures all texts anew, in other fonts.
    void remeasure(const ItemPartDrawFonts& fonts);

    /// In pixels, by the texts of the last refresh.
    int width() const { return width_; }

    int height(const ChipMetrics& metrics) const { return palette_ ? metrics.head : metrics.chip(); }

    /// What a screen reader says: title and options.
    QString spoken_name() const;

    /// The widget that shows the chip, for who meets the chip alone; null for none.
    QObject* host() const { return host_; }

    void set_host(QObject* host) { host_ = host; }

    ChipMotion& motion() { return motion_; }

    const ChipMotion& motion() const { return motion_; }

    const QRectF& rect() const { return motion_.rect(); }

    void set_hovered(bool hovered) { hovered_ = hovered; }

    void set_greyed(bool greyed) { greyed_ = greyed; }

    bool greyed() const { return greyed_; }

    /// Paints the chip into `rect`, its own place or the mirrored one.
    void paint(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts, bool selected) const;

protected:
    /// Without a part it is a palette chip.
    explicit ItemPartBaseDraw(std::shared_ptr<ItemPartBase> part) : part_(std::move(part)), palette_(!part_) {}

private:
    void measure(const ItemPartDrawFonts& fonts);
    QColor head_colour() const;
    void paint_frame(QPainter& painter, const QRectF& rect, bool selected) const;
    void paint_title(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts) const;
    void paint_options(QPainter& painter, const QRectF& rect, const ItemPartDrawFonts& fonts) const;
    /// The colour, or the grey in its place while the chip is greyed.
    QColor shown(const QColor& colour) const;

    std::shared_ptr<ItemPartBase> part_;
    const bool palette_;
    bool hovered_ = false;
    bool greyed_ = false;
    QPointer<QObject> host_;
    ChipMotion motion_;

    struct MeasuredOption {
        QStaticText text; ///< laid out once, for chips are painted far more often than they change
        int advance;
    };

    QString title_; ///< as it is painted
    OptionSegments options_;
    QStaticText title_text_;
    std::vector<MeasuredOption> measured_; ///< the options
    int width_ = 0;
};
