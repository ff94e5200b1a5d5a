#pragma once

#include "shell/windows/delay_interval.h"
#include "shell/windows/frm_options.h"

#include <QObject>

#include <memory>

namespace app {

/// Shows the windows in which the delay and the options are set, above the main window. Each is made when it
/// is first shown.
class OptionsNavigation : public QObject {
    Q_OBJECT

public:
    void showDelayInterval();
    void showOptions();

private:
    std::unique_ptr<shell::DelayInterval> delayInterval_;
    std::unique_ptr<shell::FrmOptions> options_;
};

} // namespace app
