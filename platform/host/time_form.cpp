#include "platform/host/time_form.h"

#include <QRegularExpression>

namespace platform {

namespace {

/// The one sign that stands between the hours and the minutes; a colon where it is a word or more.
QString separator_of(const QString& between)
{
    return between.size() == 1 && between[0].isPunct() ? between : QStringLiteral(":");
}

/// The day half with the blank that parts it from the time, empty when it doesn't stand in this part of the format.
/// The toolkit hands the letter of flexible times of day ("in the afternoon") through and counts 24 hours then.
QString day_half_of(const QString& part, bool is_before)
{
    static const QRegularExpression letter(QStringLiteral("[aAbB]"));
    static const QRegularExpression blank(QStringLiteral("\\s"), QRegularExpression::UseUnicodePropertiesOption);
    if (!part.contains(letter))
        return {};
    const QString gap = blank.match(part).captured();
    // As the locale spells it; with "AP" the toolkit would change its case.
    const QString field = QStringLiteral("Ap");
    return is_before ? field + gap : gap + field;
}

}

QString plain_time_form(const QLocale& locale)
{
    // The short format has the fewest words.
    static const QRegularExpression quoted(QStringLiteral("'[^']*'"));
    static const QRegularExpression fields(
        QStringLiteral("^(?<before>.*?)(?<hours>[hH]+)(?<between>.*?)m+(?<after>.*)$"));
    const auto form = fields.match(locale.timeFormat(QLocale::ShortFormat).remove(quoted));
    if (!form.hasMatch())
        return QStringLiteral("HH:mm:ss");
    const QString separator = separator_of(form.captured(u"between"));
    const QString minutes_and_seconds = QStringLiteral("%1mm%1ss").arg(separator);
    return day_half_of(form.captured(u"before"), true) + form.captured(u"hours") + minutes_and_seconds +
           day_half_of(form.captured(u"after"), false);
}

}
