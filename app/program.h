#pragma once

#include <QTranslator>

#include <memory>

class Appearance;
class QApplication;

/// What the process needs before its window: names, look, icon, translation and where stored files lie. Lives as long
/// as the window.
class Program
{
public:
    /// Throws std::runtime_error when the system doesn't tell where the program's file lies.
    explicit Program(QApplication& application);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// To be called before there is an application object.
    static void prepare();

private:
    std::unique_ptr<Appearance> appearance_;
    QTranslator translator_;
};
