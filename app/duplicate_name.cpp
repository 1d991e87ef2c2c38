#include "app/duplicate_name.h"

#include "ui/text.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

constexpr int most_tries = 1000;

/// A name taken apart.
struct CopyName {
    QString base;         ///< without the ending and the blank before it
    qlonglong number = 1; ///< of the first copy to try
};

CopyName split(const QString& name)
{
    static const QRegularExpression ending(QStringLiteral(R"(\(copy(\s+\d+)?\)$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = ending.match(name);
    if (!match.hasMatch())
        return {name};
    QString base = name.left(match.capturedStart());
    if (base.endsWith(u' '))
        base.chop(1);
    const QString number = match.captured(1).trimmed();
    // A number that is too large for any counter counts as none.
    return {base, number.isEmpty() ? 2 : number.toInt() + qlonglong{1}};
}

QString copy_ending(qlonglong number)
{
    const QString word = number < 2 ? QCoreApplication::translate("MirvantaApp", "Copy")
                                    : QCoreApplication::translate("MirvantaApp", "Copy %1").arg(number);
    return QStringLiteral(" (") + word + QStringLiteral(")");
}

}

CommandNames duplicate_names(const CommandNames& names, const NameTaken& taken)
{
    const CopyName old = split(to_qstring(names.name));
    QString ending = copy_ending(old.number);
    for (int tries = 1; tries < most_tries && taken(from_qstring(old.base + ending)); ++tries)
        ending = copy_ending(old.number + tries);
    CommandNames fresh{from_qstring(old.base + ending), {}};
    if (!names.name1.empty())
        fresh.name1 = from_qstring(split(to_qstring(names.name1)).base + ending);
    return fresh;
}
