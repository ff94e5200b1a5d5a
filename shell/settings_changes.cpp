#include "shell/settings_changes.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"

namespace shell {

namespace {

constexpr platform::Flag MarkingFlagOfDrills = 1;

} // namespace

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

void setVowelMarkForDrill()
{
    settings.VowelMark.clear();
    if (settings.ShowVowelLength == MarkingFlagOfDrills)
        settings.VowelMark = LengthMark;
}

void setVowelMarkWhereShown()
{
    if (settings.ShowVowelLength == platform::FlagTrue)
        settings.VowelMark = LengthMark;
}

void setVowelMarkAsShown()
{
    setVowelMarkWhereShown();
    if (settings.ShowVowelLength == platform::FlagFalse)
        settings.VowelMark.clear();
}

} // namespace shell
