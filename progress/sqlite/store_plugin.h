#pragma once

#include "progress/store.h"

#include <QtPlugin>

namespace progress {

/// Opens stores. It comes as a plugin, because Qt SQL and SQLite are loaded with the first answer only.
class StorePlugin {
public:
    StorePlugin() = default;
    StorePlugin(const StorePlugin&) = delete;
    StorePlugin& operator=(const StorePlugin&) = delete;
    virtual ~StorePlugin() = default;

    virtual Opened open(const std::filesystem::path& file, Access access) = 0;
};

} // namespace progress

Q_DECLARE_INTERFACE(progress::StorePlugin, "morvanti.ProgressStore/1")
