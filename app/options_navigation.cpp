#include "app/options_navigation.h"

namespace app {

void OptionsNavigation::showDelayInterval()
{
    if (!delayInterval_)
        delayInterval_ = std::make_unique<shell::DelayInterval>();
    delayInterval_->open();
}

void OptionsNavigation::showOptions()
{
    if (!options_)
        options_ = std::make_unique<shell::FrmOptions>();
    options_->open();
}

} // namespace app
