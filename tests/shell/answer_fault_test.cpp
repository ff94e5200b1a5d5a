#include "shell/answer_fault.h"

#include <gtest/gtest.h>

namespace {

using shell::FaultKind;

TEST(AnswerFault, NamesWhatIsPlainAndFindsTheFirstLetterThatDiffers)
{
    const struct {
        std::string_view answer, right, differs;
        FaultKind kind;
    } faults[] = {
        {"ama:s", "ama:t", "s", FaultKind::Other},
        {"", "amo:", "", FaultKind::Other},
        {"ama", "amas", "", FaultKind::Other},
        {"amass", "amas", "s", FaultKind::Other},
        {"Rosa", "rosa", "R", FaultKind::Capital},
        {"älter", "Älter", "ä", FaultKind::Capital},
        {"ÀäZ", "ÀäĀ", "Z", FaultKind::Other},
        {"a mas", "amas", " ", FaultKind::BlankTooMany},
        {"amas ", "amas", " ", FaultKind::BlankTooMany},
        {"tobe", "to be", "b", FaultKind::Other},
        {"amatus sum", "amatus -a -um sum", "s", FaultKind::GendersMissing},
        {"amatus est", "amatus -a -um sum", "e", FaultKind::Other},
        {"rectus -a -um sum", "rectus sum", "-", FaultKind::GendersTooMany},
        {"amati -ae -a sumus", "amati sumus", "-", FaultKind::GendersTooMany},
        {"amī", "amō", "ī", FaultKind::Other},
        {"amo", "amo:", "", FaultKind::MarkMissing},
        {"amat", "ama:t", "t", FaultKind::MarkMissing},
        {"ama:t", "amat", ":", FaultKind::MarkTooMany},
        {"a:mat", "ama:t", ":", FaultKind::MarkMoved},
        {"né", "nè", "é", FaultKind::Other},
    };
    for (const auto& [answer, right, differs, kind] : faults) {
        EXPECT_EQ(shell::faultOf(answer, right), kind) << answer;
        const auto [start, length] = shell::letterThatDiffers(answer, right);
        EXPECT_EQ(answer.substr(start, length), differs) << answer;
    }
}

} // namespace
