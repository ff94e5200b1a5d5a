#include "app/sound_player.h"

#include <QCoreApplication>
#include <QPluginLoader>

#include <array>

namespace app {

namespace {

// Where the plugin may lie, seen from the program's folder: just built, and installed.
constexpr std::array PluginPlaces = {"/libmorvanti_sound.so", "/../lib/morvanti/libmorvanti_sound.so"};

SoundPlayer* player = nullptr;
bool tried = false;

SoundPlayer* load()
{
    for (const char* const place : PluginPlaces) {
        QPluginLoader loader(QCoreApplication::applicationDirPath() + QLatin1String(place));
        if (auto* const found = qobject_cast<SoundPlayer*>(loader.instance()))
            return found;
    }
    return nullptr;
}

} // namespace

SoundPlayer* soundPlayer()
{
    if (!tried)
        player = load();
    tried = true;
    return player;
}

SoundPlayer* loadedSoundPlayer()
{
    return player;
}

} // namespace app
