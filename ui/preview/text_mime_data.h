#pragma once

#include "ui/preview/text_pieces.h"

#include <QMimeData>

/// A part of a text as plain text, cut out only when somebody asks for it: a desktop is offered every selection made
/// with the mouse and seldom reads one.
class TextMimeData final : public QMimeData
{
    Q_OBJECT

public:
    TextMimeData(QString text, TextPieces::Part part) : text_(std::move(text)), part_(part) {}

    QStringList formats() const override { return {QStringLiteral("text/plain")}; }

    bool hasFormat(const QString& format) const override { return formats().contains(format); }

protected:
    QVariant retrieveData(const QString& format, QMetaType type) const override;

private:
    const QString text_;
    const TextPieces::Part part_;
};
