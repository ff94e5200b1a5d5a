#pragma once

#include "app/common_windows.h"
#include "progress/keeper.h"

#include <QObject>

namespace app {

/// Joins the record of answers with the drills that give them.
class ProgressNavigation : public QObject {
public:
    explicit ProgressNavigation(CommonWindows& common);
    ~ProgressNavigation() override;

private:
    CommonWindows& common_;
    progress::Keeper keeper_;
};

} // namespace app
