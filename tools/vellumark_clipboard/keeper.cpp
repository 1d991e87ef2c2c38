#include "vellumark_clipboard/keeper.h"

#include "vellumark_clipboard/background.h"
#include "vellumark_clipboard/x11_clipboard.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>

using namespace std::chrono_literals;

namespace {

/// For a program that is still fetching a large text when another one copies.
constexpr auto last_transfer = 2s;

std::optional<QByteArray> standard_input()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = input.readAll();
    return input.error() == QFileDevice::NoError ? std::optional(std::move(content)) : std::nullopt;
}

/// The bytes as they are, for a QString would take twice their room and be encoded anew for everyone who asks.
std::unique_ptr<QMimeData> as_text(const QByteArray& utf8)
{
    auto data = std::make_unique<QMimeData>();
    for (const auto& type : {QStringLiteral("text/plain"), QStringLiteral("text/plain;charset=utf-8")})
        data->setData(type, utf8);
    return data;
}

int keep(BackgroundProcess& process, int argc, char* argv[])
{
    const std::optional<QByteArray> text = standard_input();
    if (!text || !prepare_x11())
        return 1;
    QGuiApplication application(argc, argv);
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setMimeData(as_text(*text).release());
    QObject::connect(&clipboard, &QClipboard::dataChanged, &application, [&] {
        if (!owns_clipboard(application))
            QTimer::singleShot(last_transfer, &application, &QCoreApplication::quit);
    });
    if (!owns_clipboard(application) || !process.report_success())
        return 1;
    return QGuiApplication::exec();
}

}

int keep_text(int argc, char* argv[])
{
    BackgroundProcess process;
    return process.is_foreground() ? process.wait_for_report() : keep(process, argc, argv);
}
