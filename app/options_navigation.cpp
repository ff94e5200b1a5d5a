#include "app/options_navigation.h"

namespace app {

void OptionsNavigation::showDelayInterval()
{
    if (!delayInterval_) {
        delayInterval_ = std::make_unique<shell::DelayInterval>();
        connect(delayInterval_.get(), &shell::DelayInterval::helpRequested, this,
                &OptionsNavigation::helpRequested);
    }
    delayInterval_->open();
}

void OptionsNavigation::showOptions()
{
    if (!options_) {
        options_ = std::make_unique<shell::FrmOptions>();
        connect(options_.get(), &shell::FrmOptions::helpRequested, this, &OptionsNavigation::helpRequested);
    }
    options_->open();
}

} // namespace app
