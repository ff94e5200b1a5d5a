#include "progress/calendar.h"
#include "progress/csv.h"
#include "progress/grammar_names.h"
#include "progress/other_form.h"
#include "progress/review.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Progress = tests::FreshState;
using progress::Form;
using progress::Row;

constexpr std::int64_t OneDay = 86400;

Row row(bool right, std::int64_t day, std::int64_t drill, const std::string& exercise = "Conjugation")
{
    return {.moment = {.secondsSinceEpoch = day * OneDay},
            .answer = {.exercise = exercise,
                       .word = "amare",
                       .place = "First Conjugation / Present Indicative / 1st Person Sing",
                       .asked = "amare, Present Indicative, 1st Person Sing",
                       .expected = "amo",
                       .written = right ? "amo" : "ama",
                       .right = right},
            .drill = drill};
}

TEST_F(Progress, AFormGoesUpAndDownTheBoxesAndComesBackOnItsDay)
{
    // Each answer on its day, in its drill; then the box, the day when it is due, and the share.
    struct Step {
        bool right;
        std::int64_t day, drill;
        int box;
        std::int64_t due;
        const char* share;
    };
    Form form;
    for (const auto& [right, day, drill, box, due, share] : {Step{true, 100, 1, 2, 101, "100 %"},
                                                             {true, 101, 2, 3, 104, "100 %"},
                                                             {true, 104, 3, 4, 111, "100 %"},
                                                             {false, 111, 4, 1, 111, "75 %"},
                                                             {true, 111, 4, 1, 111, "80 %"},
                                                             {true, 111, 4, 2, 112, "83 %"},
                                                             {false, 112, 5, 1, 112, "71 %"},
                                                             {true, 112, 6, 2, 113, "75 %"},
                                                             {true, 113, 7, 3, 116, "78 %"},
                                                             {true, 116, 8, 4, 123, "80 %"},
                                                             {true, 123, 9, 5, 137, "80 %"},
                                                             {true, 137, 10, 6, 167, "80 %"},
                                                             {true, 170, 11, 6, 200, "80 %"},
                                                             {true, 200, 0, 6, 230, "90 %"},
                                                             {false, 230, 0, 1, 230, "80 %"},
                                                             {true, 230, 0, 2, 231, "80 %"}}) {
        form = progress::after(form, row(right, day, drill));
        EXPECT_EQ(form.box, box) << day;
        EXPECT_EQ(form.due, due) << day;
        EXPECT_EQ(progress::textOf(progress::shareOf(form)), share) << day;
    }
    EXPECT_EQ(form.wrongAnswers, std::vector<std::string>{"ama"});
    EXPECT_EQ(progress::textOf({}), "");
    EXPECT_FALSE(progress::after({}, row(true, 100, 1, "Quiz")).due);
}

TEST_F(Progress, AFormIsTheSameWithAndWithoutMarksAndIsAskedAsMarksAreShownNow)
{
    Row marked = row(false, 100, 1);
    marked.answer.word = "ama:re";
    marked.answer.expected = "amo:";
    marked.marksShown = true;
    EXPECT_EQ(progress::nameOf(marked.answer), progress::nameOf(row(true, 100, 1).answer));
    auto ofList = marked.answer;
    ofList.exercise = "Vcabtester";
    EXPECT_EQ(progress::nameOf(ofList).word, "ama:re");

    // Shown when it was kept or not, shown now or not; what is expected, and whether "amo:" is right.
    for (const auto& [then, now, expected, right] : {std::tuple{true, true, "amo:", true},
                                                     {true, false, "amo", false},
                                                     {false, true, "amo", true},
                                                     {false, false, "amo", false}}) {
        shell::settings.ShowVowelLength = now ? platform::FlagTrue : platform::FlagFalse;
        const auto question = progress::questionFor(progress::after({}, then ? marked : row(true, 100, 1)));
        EXPECT_EQ(question.expected, expected);
        EXPECT_EQ(progress::judged(question, "amo:").right, right) << then << now;
        EXPECT_EQ(progress::judged(question, "amo:").written, "amo:");
    }
    const Form both = progress::after(progress::after({}, marked), row(true, 101, 2));
    EXPECT_EQ(both.expected, "amo:"); // marks are hidden, not lost
}

TEST_F(Progress, WhatWasMissedInAReviewComesAgainAsTheLast)
{
    progress::ReviewRound round;
    round.begin({5, 3, 8});
    std::vector<std::pair<std::int64_t, int>> asked;
    for (bool right = false; round.asked(); right = true) {
        asked.emplace_back(*round.asked(), round.left());
        round.moveOn(right);
    }
    EXPECT_EQ(asked, (std::vector<std::pair<std::int64_t, int>>{{5, 3}, {3, 3}, {8, 2}, {5, 1}}));
    EXPECT_EQ(round.left(), 0);
    round.begin({3, 5});
    EXPECT_EQ(round.missed(), 1);
}

TEST_F(Progress, IsWrittenAsATableThatOtherProgramsRead)
{
    // 29 February 2024, half past midnight in India, when it was the day before in Greenwich.
    const platform::Moment moment{1709146800, 19800};
    EXPECT_EQ(progress::isoTime(moment), "2024-02-29T00:30:00+05:30");
    EXPECT_EQ(progress::isoTime({1704067199, -12600}), "2023-12-31T20:29:59-03:30");
    EXPECT_EQ(platform::localDay({-1, 0}), -1);
    EXPECT_EQ(progress::csvLine({.moment = moment,
                                 .answer = {.exercise = "Vcabtester",
                                            .word = "a, ab",
                                            .place = "my \"list\".lst / word",
                                            .asked = "a, ab",
                                            .expected = "from",
                                            .written = "by\nfrom",
                                            .right = false}}),
              "2024-02-29T00:30:00+05:30,Vcabtester,\"a, ab\",\"my \"\"list\"\".lst / word\",\"a, ab\",from,"
              "\"by\nfrom\",0\r\n");
}

// ego, tu and the reflexive are three words; is, ea, id are one.
TEST_F(Progress, AnAnswerIsAnotherFormOfTheWordThatIsAsked)
{
    for (const auto& [place, written, isOther] :
         {std::tuple{"ego-tu-* / Genitive Singular / 1 Pers. Sing.", "tu", false},
          {"ego-tu-* / Genitive Singular / 1 Pers. Sing.", "nos", true},
          {"ego-tu-* / Dative Plural / 3 Pers. Plur.", "sui", true},
          {"is-ea-id / Dative Plural / Fem. Plur.", "id", true}}) {
        shell::AnswerRecord question = row(true, 0, 0, "Pronouns").answer;
        question.place = place;
        EXPECT_EQ(progress::otherFormOf(question, written).has_value(), isOther) << place << written;
    }
}

TEST_F(Progress, IsExportedWithEnglishNamesFromWhicheverLanguageTheyWereKeptIn)
{
    struct Kept {
        std::string exercise, asked, expected, exported;
    };
    for (const Kept& kept : {
             Kept{"Conjugation", "amare, Passiv Präsens Indikativ, 3. Person Plur.", "amantur",
                  "\"amare, Passive Present Indicative, 3rd Person Plur\",amantur"},
             Kept{"Conjugation", "amare, Futuro de subjuntivo pasivo, 1st Person Sing", "x",
                  "\"amare, Passive Future Perfect Indicative, 1st Person Sing\",x"},
             Kept{"Declination", "equus, Dative Einzahl", "equo", "\"equus, Dative Singular\",equo"},
             Kept{"Declination", "rex, Genitive numerus pluralis", "regum", "\"rex, Genitive Plural\",regum"},
             Kept{"Quiz", "capio", "Persona i Sing., Conjugatio III (-io), Praesens Indicativum",
                  "capio,\"1st Person Sing, Third Conjugation (-io), Present Indicative\""},
             Kept{"NounQuiz", "equi", "singular Genitive Plural Nominative",
                  "equi,singular Genitive Plural Nominative"},
             Kept{"Vcabtester", "Einzahl", "Singular", "Einzahl,Singular"},
         }) {
        const Row row{.moment = {},
                      .answer = {.exercise = kept.exercise,
                                 .word = {},
                                 .place = {},
                                 .asked = kept.asked,
                                 .expected = kept.expected}};
        EXPECT_NE(progress::csvLine(row).find("," + kept.exported + ","), std::string::npos) << kept.asked;
    }
}

TEST_F(Progress, SetsTheCaseOfAPronounOffFromItsPerson)
{
    EXPECT_EQ(progress::questionInLanguageShown("Pronouns", "ego-tu-*, 1 Pers. Sing. Accusative"),
              "ego-tu-*, 1 Pers. Sing., Accusative");
    EXPECT_EQ(progress::questionInLanguageShown("Declination", "equus, Dative Singular"),
              "equus, Dative Singular");
}

} // namespace
