#include "ui/filters/filter_header_text.h"

#include <QCoreApplication>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FilterHeader)
};

}

QString filter_header_text(const FilterSummary& summary)
{
    QString text = Texts::tr("Filter").toHtmlEscaped();
    if (!summary.label.isEmpty())
        text += QStringLiteral(" &mdash; <i>") + summary.label.toHtmlEscaped() + QStringLiteral("</i>");
    if (!summary.value.isEmpty())
        text += (summary.is_invalid ? QStringLiteral(": <b style=\"color:red\">") : QStringLiteral(": <b>")) +
                summary.value.toHtmlEscaped() + QStringLiteral("</b>");
    if (summary.is_invalid)
        text += QStringLiteral(" &nbsp;<span style=\"color:red\"><b>") + Texts::tr("Invalid").toHtmlEscaped() +
                QStringLiteral("</b></span>");
    return text;
}
