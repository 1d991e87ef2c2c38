#include "app/program.h"

#include "app/appearance.h"
#include "platform/known_folders.h"
#include "store/mv_config.h"
#include "ui/product.h"

#include <QApplication>
#include <QIcon>

void Program::prepare()
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

Program::Program(QApplication& application)
{
    QCoreApplication::setOrganizationName(QLatin1StringView(product::organisation));
    QCoreApplication::setOrganizationDomain(QLatin1StringView(product::organisation_domain));
    QCoreApplication::setApplicationName(QLatin1StringView(product::application));
    appearance_ = std::make_unique<Appearance>(application);
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/MirvantaApp/Resources/AppIcon.ico")));
    // English texts are the sources; without the file only forms that depend on a number are less than perfect.
    // The empty texts, other than null ones, leave the name as it is: the file has no extension.
    if (translator_.load(QStringLiteral("VellumarkConfigure_en"), QCoreApplication::applicationDirPath(),
                         QStringLiteral(""), QStringLiteral("")))
        QCoreApplication::installTranslator(&translator_);
    MVConfigLive::install(platform::program_folder());
}

Program::~Program() = default;
