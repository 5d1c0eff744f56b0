// Loads the plug-in given on the command line through the installed SDK and prints its interface id,
// its plug-in id and the file PluginBase's code was loaded from.

#include "PluginBase.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QPluginLoader>
#include <QTextStream>

#include <dlfcn.h>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QTextStream err(stderr);
    if (argc != 2) {
        err << "usage: stubhost PLUGIN\n";
        return 2;
    }
    QPluginLoader loader(QString::fromLocal8Bit(argv[1]));
    auto* plugin = qobject_cast<PluginBase*>(loader.instance());
    if (!plugin) {
        err << "not a plug-in of this host: " << loader.errorString() << '\n';
        return 1;
    }
    // Through the virtual table of the installed SDK: no framework, so Init alone runs.
    if (!plugin->InitialPluginBase(nullptr, nullptr, nullptr)) {
        err << "InitialPluginBase failed\n";
        return 1;
    }
    Dl_info sdk {};
    dladdr(reinterpret_cast<const void*>(&PluginBase::staticMetaObject), &sdk);
    const QJsonObject metaData = loader.metaData();
    const QJsonObject pluginData = metaData.value(QLatin1String("MetaData")).toObject();
    QTextStream(stdout) << metaData.value(QLatin1String("IID")).toString() << ' '
                        << pluginData.value(QLatin1String("PluginID")).toString() << ' ' << sdk.dli_fname << '\n';
    return 0;
}
