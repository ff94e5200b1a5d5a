#include "shell/settings.h"

#include "shell/vowel_marks.h"

#include <limits>

namespace shell {

void countSettingsChange()
{
    if (settings.SettingsChangeCount < std::numeric_limits<std::int16_t>::max())
        ++settings.SettingsChangeCount;
}

void chooseLanguage(std::string_view language)
{
    settings.CurrentLanguage = language;
    countSettingsChange();
}

void chooseCaseOrder(std::string_view caseOrder)
{
    settings.CaseOrder = caseOrder;
    countSettingsChange();
}

void chooseQuestionOrder(std::string_view questionOrder)
{
    settings.QuestionOrder = questionOrder;
    countSettingsChange();
}

void switchSound(bool on)
{
    settings.SoundOn = platform::flagOf(on);
    countSettingsChange();
}

void switchVowelLength(bool shown)
{
    settings.ShowVowelLength = platform::flagOf(shown);
    setVowelMarkAsShown();
}

void switchSaving(bool saved)
{
    settings.SaveSettingsOnExit = platform::flagOf(saved);
}

} // namespace shell
