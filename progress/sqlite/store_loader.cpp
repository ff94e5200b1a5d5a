#include "progress/sqlite/store_loader.h"

#include "progress/sqlite/store_plugin.h"

#include <QCoreApplication>
#include <QPluginLoader>

#include <array>

namespace progress {

namespace {

// Where the plugin may lie, seen from the program's folder: just built, and installed.
constexpr std::array PluginPlaces = {"/libmorvanti_progress.so", "/../lib/morvanti/libmorvanti_progress.so"};

StorePlugin* load()
{
    for (const char* const place : PluginPlaces) {
        QPluginLoader loader(QCoreApplication::applicationDirPath() + QLatin1String(place));
        if (auto* const found = qobject_cast<StorePlugin*>(loader.instance()))
            return found;
    }
    return nullptr;
}

} // namespace

Opened openStore(const std::filesystem::path& file, Access access)
{
    static StorePlugin* const plugin = load();
    if (plugin == nullptr)
        return {.store = nullptr, .trouble = Trouble::Unavailable};
    return plugin->open(file, access);
}

} // namespace progress
