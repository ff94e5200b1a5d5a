#pragma once

#include "app/common_windows.h"
#include "app/on_demand.h"
#include "tables/windows/tables.h"

#include <QObject>
#include <QTimer>

namespace app {

/// Opens the tables from the main window, and by F2 at the word that stands in the active one. As long as
/// they are seen they follow what is done in the other windows, and can be used beside a modal one.
/// It sees every event of the program as long as it lives.
class TablesNavigation : public QObject {
public:
    explicit TablesNavigation(shell::MainMenu& mainMenu);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void joinTables(tables::Tables& tables);
    bool openAtWordShown();
    void follow();

    OnDemand<tables::Tables> tables_{this, &TablesNavigation::joinTables};
    const tables::Tables* made_ = nullptr;
    QTimer following_;
};

} // namespace app
