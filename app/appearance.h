#pragma once

#include <QObject>

class QApplication;

/// The style, the style sheet and the colour scheme of the whole program, from construction on: the colour table
/// follows the desktop as that changes between light and dark. One object; no widget may be older.
class Appearance final : public QObject
{
    Q_OBJECT

public:
    explicit Appearance(QApplication& application);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void follow_desktop();
};
