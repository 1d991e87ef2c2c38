#include "app/appearance.h"
#include "app/mirvanta_app.h"
#include "platform/known_folders.h"
#include "store/mv_config.h"
#include "ui/product.h"

#include <QApplication>
#include <QIcon>
#include <QTranslator>

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QLatin1StringView(product::organisation));
    QCoreApplication::setOrganizationDomain(QLatin1StringView(product::organisation_domain));
    QCoreApplication::setApplicationName(QLatin1StringView(product::application));
    const Appearance appearance(application);
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/MirvantaApp/Resources/AppIcon.ico")));
    QTranslator translator;
    if (translator.load(QStringLiteral("VellumarkConfigure_en"), QCoreApplication::applicationDirPath(), QString(),
                        QString()))
        QCoreApplication::installTranslator(&translator);
    MVConfigLive::install(platform::program_folder());
    MirvantaApp window;
    window.show();
    return QApplication::exec();
}
