#include "preview/scenarios.h"

#include <QApplication>

/// Measures the preview in a window; QT_QPA_PLATFORM says which kind. The status is 1 when a target is missed.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Report report;
    measure_key_strokes(report);
    measure_pane(report);
    measure_chips(report);
    measure_big_texts(report);
    measure_selections(report);
    measure_progress(report);
    return report.missed() ? 1 : 0;
}
