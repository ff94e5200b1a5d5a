#include "progress/sqlite/sqlite_plugin.h"

#include "progress/sqlite/sqlite_store.h"

namespace progress {

Opened SqlitePlugin::open(const std::filesystem::path& file, Access access)
{
    return openSqliteStore(file, access);
}

} // namespace progress
