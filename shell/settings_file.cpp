#include "shell/settings_file.h"

#include "platform/field_reader.h"
#include "platform/file_replacement.h"
#include "platform/printed_number.h"
#include "platform/text_file.h"
#include "shell/settings.h"

#include <algorithm>

namespace shell {

namespace {

using platform::FieldReader;
using platform::FlagFalse;
using platform::FlagTrue;

constexpr int FirstStoredEntry = 1;
constexpr int LastStoredClassEntry = 7;
constexpr int LastStoredTenseEntry = 20;

constexpr int DelayWhereUnreadable = 2;
constexpr int DelayAfterWriting = 15; // sic

bool delayIsOutOfRange()
{
    return settings.DelaySeconds > LongestDelay || settings.DelaySeconds < ShortestDelay;
}

bool readText(FieldReader& reader, std::string& text)
{
    if (!reader.readBare(text))
        return false;
    while (text.size() >= 2 && text.front() == '"' && text.back() == '"')
        text = text.substr(1, text.size() - 2);
    return true;
}

bool readDelay(FieldReader& reader)
{
    if (!reader.read(settings.DelaySeconds))
        return false;
    if (delayIsOutOfRange())
        settings.DelaySeconds = DelayWhereUnreadable;
    return true;
}

template <typename Entries>
bool readEntries(FieldReader& reader, Entries& entries, int last)
{
    for (int i = FirstStoredEntry; i <= last; ++i)
        if (!reader.read(entries[i]))
            return false;
    return true;
}

template <typename Entries>
void includeFirstWhereNone(Entries& entries, int last)
{
    const auto end = entries.begin() + last + 1;
    if (std::find(entries.begin(), end, FlagTrue) == end)
        entries[0] = FlagTrue;
}

} // namespace

bool readSettings(const std::filesystem::path& path)
{
    platform::TextFile file = platform::readTextFile(path);
    if (file.fault)
        return false;
    FieldReader reader(std::move(file.text));
    std::string ignoredVersion;
    return readText(reader, ignoredVersion) && reader.read(settings.ShowVowelLength) &&
           reader.read(settings.SoundOn) && readDelay(reader) && readText(reader, settings.CurrentLanguage) &&
           readText(reader, settings.CaseOrder) && readText(reader, settings.QuestionOrder) &&
           reader.read(settings.MainWindowState) && reader.read(settings.SaveSettingsOnExit) &&
           readEntries(reader, settings.QuizConjInclude, LastStoredClassEntry) &&
           readEntries(reader, settings.QuizTenseInclude, LastStoredTenseEntry);
}

void applyDefaultSettings()
{
    settings.ShowVowelLength = FlagFalse;
    settings.SoundOn = FlagFalse;
    settings.CurrentLanguage = language::English;
    settings.DelaySeconds = DelayWhereUnreadable;
    settings.CaseOrder = case_order::NGDAAb;
    settings.QuestionOrder = question_order::Sequential;
    settings.QuizConjInclude[0] = FlagTrue;
    settings.QuizTenseInclude[0] = FlagTrue;
    settings.NounQuizParadigmInclude[0] = FlagTrue;
    settings.NounQuizCaseInclude[0] = FlagTrue;
    settings.MainWindowState = window_state::Maximised;
    settings.SaveSettingsOnExit = FlagTrue;
}

void mendSettings()
{
    if (settings.CaseOrder != case_order::NAGDAb)
        settings.CaseOrder = case_order::NGDAAb;
    if (settings.QuestionOrder != question_order::Random)
        settings.QuestionOrder = question_order::Sequential;
    includeFirstWhereNone(settings.QuizConjInclude, LastStoredClassEntry);
    includeFirstWhereNone(settings.QuizTenseInclude, LastStoredTenseEntry);
}

std::string settingsText()
{
    std::string text;
    const auto line = [&](std::string_view value) { text.append(value).append("\r\n"); };
    const auto numberLine = [&](long number) { line(platform::printedNumber(number)); };
    line(settings.SettingsFileVersion);
    numberLine(settings.ShowVowelLength);
    numberLine(settings.SoundOn);
    numberLine(settings.DelaySeconds);
    line(settings.CurrentLanguage);
    line(settings.CaseOrder);
    line(settings.QuestionOrder);
    numberLine(settings.MainWindowState);
    numberLine(settings.SaveSettingsOnExit);
    for (int i = FirstStoredEntry; i <= LastStoredClassEntry; ++i)
        numberLine(settings.QuizConjInclude[i]);
    for (int i = FirstStoredEntry; i <= LastStoredTenseEntry; ++i)
        numberLine(settings.QuizTenseInclude[i]);
    return text;
}

std::optional<platform::Fault> writeSettings(const std::filesystem::path& path)
{
    const auto fault = platform::replaceFile(path, settingsText());
    if (!fault && delayIsOutOfRange())
        settings.DelaySeconds = DelayAfterWriting;
    return fault;
}

} // namespace shell
