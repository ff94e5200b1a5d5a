#pragma once

#include "progress/sqlite/store_plugin.h"

#include <QObject>

namespace progress {

/// The stores as SQLite keeps them.
class SqlitePlugin : public QObject, public StorePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "morvanti.ProgressStore/1")
    Q_INTERFACES(progress::StorePlugin)

public:
    Opened open(const std::filesystem::path& file, Access access) override;
};

} // namespace progress
