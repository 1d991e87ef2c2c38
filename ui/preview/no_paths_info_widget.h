#pragma once

#include <QWidget>

/// Tells how to get a selection. Main thread only.
class NoPathsInfoWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit NoPathsInfoWidget(QWidget* parent = nullptr);
};
