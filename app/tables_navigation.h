#pragma once

#include "app/common_windows.h"
#include "app/on_demand.h"
#include "tables/windows/tables.h"

#include <QObject>

namespace app {

/// Opens the tables from the main window, and by F2 at the word that stands in the active one. It sees every
/// key of the program as long as it lives.
class TablesNavigation : public QObject {
public:
    explicit TablesNavigation(shell::MainMenu& mainMenu);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    OnDemand<tables::Tables> tables_{&hideWhenLeft};
};

} // namespace app
