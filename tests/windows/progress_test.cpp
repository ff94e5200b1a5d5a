#include "shell/answer_record.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

namespace {

using tests::label;
using tests::shownWindow;

class Progress : public tests::WindowTest {
protected:
    static void tell(const std::string& exercise, const std::string& word, const std::string& place,
                     const std::string& expected, const std::string& written)
    {
        shell::tellAnswer({.exercise = exercise,
                           .word = word,
                           .place = place,
                           .asked = word + ", " + place.substr(place.find('/') + 2),
                           .expected = expected,
                           .written = written,
                           .right = expected == written});
    }

    static void tellOfAmare(const std::string& tense, const std::string& person, const std::string& expected,
                            const std::string& written)
    {
        tell("Conjugation", "amare", "First Conjugation / " + tense + " / " + person, expected, written);
    }

    static void tellOfThreeForms()
    {
        tellOfAmare("Imperative", "2nd Person Sing", "ama", "ame");
        tell("Vcabtester", "insula", "own.lst / word", "and/or?", "x");
        tell("Declination", "rex", "Third Declension / Genitive Singular", "regis", "rexis");
    }

    QWidget& openProgress() { return open("FileProgress", "Progress"); }

    QWidget& openReview()
    {
        tests::click(openProgress(), "ProgressReview");
        return tests::shown("Review");
    }

    static QString leftIn(const QWidget& review) { return label(review, "ReviewLeft").section(' ', 0, 0); }
    static QString asked(const QWidget& review) { return withPlainBlanks(label(review, "ReviewQuestion")); }
    static QString withPlainBlanks(QString text) { return text.replace(QChar::Nbsp, u' '); }
};

TEST_F(Progress, AGridHasTheShareOfEachCellAndACellItsWorstFormFirstWithWhatWasWritten)
{
    QWidget& menu = start();
    tellOfAmare("Imperative", "2nd Person Sing", "ama", "ama");
    for (const char* const written : {"amo", "amo", "amo"})
        tellOfAmare("Present Indicative", "1st Person Sing", "amo", written);
    for (const char* const written : {"amat", "amabt", "amat", "ambat", "amabt"})
        tellOfAmare("Present Indicative", "3rd Person Sing", "amat", written);
    tell("Quiz", "re:gere", "Third Conjugation / Present Indicative / 1st Person Sing", "sum", "est");
    tell("Vcabtester", "insula", "vr-vcab.lst / word", "island", "island");
    tests::choose(menu, "VowelLengthVal");

    QWidget& progress = openProgress();
    auto& grid = tests::control<QTableView>(progress, "ProgressGrid");
    const auto textAt = [&](int row, int column, int role = Qt::DisplayRole) {
        return grid.model()->index(row, column).data(role).toString();
    };
    EXPECT_EQ(grid.model()->headerData(0, Qt::Vertical).toString(), "Present Indicative");
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString().simplified(), "Third Conjugation");
    EXPECT_EQ(textAt(0, 0) + '|' + textAt(0, 1) + '|' + textAt(1, 0) + '|' + textAt(1, 1), "63 %|0 %|100 %|");
    EXPECT_EQ(textAt(0, 0, Qt::AccessibleTextRole),
              "First Conjugation, Present Indicative: 63 percent right, 5 of 8 answers");
    const QModelIndex notAsked = grid.model()->index(1, 1);
    EXPECT_EQ(textAt(1, 1, Qt::AccessibleTextRole), "Third Conjugation, Imperative: not asked yet");
    const QModelIndex worst = grid.currentIndex();
    grid.setCurrentIndex(notAsked);
    EXPECT_EQ(grid.viewport()->grab().toImage().pixelColor(grid.visualRect(notAsked).center()),
              grid.palette().color(QPalette::Base));
    grid.setCurrentIndex(worst);

    EXPECT_EQ(tests::focusIn(progress), "ProgressGrid");
    const auto& forms = tests::control<QTableWidget>(progress, "ProgressForms");
    EXPECT_EQ(forms.item(0, 0)->text().section(',', 0, 0), "re:gere");
    tests::press(progress, Qt::Key_Left);
    tests::press(progress, Qt::Key_Return);
    EXPECT_EQ(tests::focusIn(progress), "ProgressForms");
    QStringList first;
    for (int column = 0; column < forms.columnCount(); ++column)
        first << withPlainBlanks(forms.item(0, column)->text());
    EXPECT_EQ(first.join('|'), "amare, Present Indicative, 3rd Person Sing|40 %|amat|amabt; ambat");
    EXPECT_EQ(forms.item(1, 1)->text(), "100 %");
    const int line = forms.rowHeight(0);
    progress.resize(300, 600);
    EXPECT_GT(forms.rowHeight(0), line);
    EXPECT_TRUE(label(progress, "ProgressDaysLabel").contains("year: 1; answers: 11, right: 7."));

    EXPECT_EQ(label(progress, "ProgressDay"), "4 October 2024: 11 answers, 7 right");
    tests::press(progress, Qt::Key_Tab);
    tests::press(progress, Qt::Key_Left);
    tests::press(progress, Qt::Key_Down);
    EXPECT_EQ(label(progress, "ProgressDay"), "28 September 2024: 0 answers, 0 right");

    auto& kind = tests::control<QComboBox>(progress, "ProgressKind");
    kind.setFocus();
    tests::press(progress, Qt::Key_Down, 2);
    EXPECT_EQ(textAt(0, 0), "100 %");
    tests::press(progress, Qt::Key_Up);
    EXPECT_FALSE(grid.isVisible());
    EXPECT_EQ(label(progress, "ProgressNothing"), "Nothing has been answered here yet.");
}

TEST_F(Progress, StandsInTheOrderOfAGrammarAndInTheLanguageOfTheInterface)
{
    QWidget& menu = start();
    tell("NounQuiz", "rex", "Third Declension / Genitive Plural", "Genitive Plural", "singular Dative");
    tell("Pronouns", "is", "is-ea-id / Dative Singular / Fem. Sing.", "ei", "ei");
    tell("Declination", "fides", "Second Declension (-us) / Ablative Singular", "fide", "fides");
    tests::choose(menu, "GermanLang");
    const auto& grid = tests::control<QTableView>(openProgress(), "ProgressGrid");
    QStringList names;
    for (int column = 0; column < 3; ++column)
        names << grid.model()->headerData(column, Qt::Horizontal).toString().simplified();
    for (int row = 0; row < 3; ++row)
        names << grid.model()->headerData(row, Qt::Vertical).toString();
    EXPECT_EQ(names.join('|'), "2. Deklination (-us)|3. Deklination|is-ea-id|"
                               "Dativ Einzahl|Ablativ Einzahl|Genitiv Mehrzahl");
    EXPECT_EQ(asked(openReview()), "fides, Ablativ Einzahl");
}

TEST_F(Progress, TheTenCasesOfANounAreSeenAtOnceUnderHeadingsOfOneLine)
{
    QWidget& menu = start();
    for (const std::string number : {" Singular", " Plural"})
        for (const std::string inCase : {"Nominative", "Genitive", "Dative", "Accusative", "Ablative"})
            tell("Declination", "equus", "Second Declension (-us) / " + inCase + number, "equus", "equus");
    tests::press(openProgress(), Qt::Key_Escape);
    tests::choose(menu, "GermanLang");
    QWidget& progress = openProgress();
    const auto& grid = tests::control<QTableView>(progress, "ProgressGrid");
    EXPECT_EQ(grid.model()->headerData(0, Qt::Horizontal).toString(), "2. Deklination (-us)");
    EXPECT_GE(grid.viewport()->height(), grid.rowViewportPosition(9) + grid.rowHeight(9));
    for (const std::string paradigm : {"First", "Third", "Fourth", "Fifth"})
        tell("Declination", "rex", paradigm + " Declension / Genitive Singular", "regis", "regis");
    openProgress();
    const auto& forms = tests::control<QTableWidget>(progress, "ProgressForms");
    EXPECT_LE(grid.sizeHint().width(), forms.sizeHint().width()) << "no room for headings that can break";
    auto& kind = tests::control<QComboBox>(progress, "ProgressKind");
    const QSize least = kind.minimumSizeHint();
    for (const double times : {3.0, 1.0}) {
        QFont font = progress.font();
        font.setPointSizeF(QApplication::font().pointSizeF() * times);
        kind.setFont(font);
        EXPECT_EQ(kind.minimumSizeHint() == least, times == 1);
    }
    EXPECT_GT(kind.width(), kind.fontMetrics().horizontalAdvance("Zeitformen nach Konjugation"));
}

TEST_F(Progress, TheGridAndTheHighestFormAreSeenWholeInALowWindowAndManyFormsMakeItHigher)
{
    start();
    shell::settings.MainWindowState = shell::window_state::Normal;
    for (const std::string tense : {"Present", "Imperfect", "Future", "Perfect", "Pluperfect"})
        tellOfAmare(tense + " Indicative", "1st Person Sing", "amo", "amo");
    tellOfAmare("Passive Pluperfect Subjunctive", "1st Person Sing", "amatus -a -um essem", "amatus essem");
    QWidget& progress = openProgress();
    const int withOneForm = progress.height();
    for (const std::string person :
         {"2nd Person Sing", "3rd Person Sing", "1st Person Plur", "2nd Person Plur"})
        for (const std::string written :
             {"amatus ", "a very long answer indeed ", "one that is longer still "})
            tellOfAmare("Passive Pluperfect Subjunctive", person, "amati essemus",
                        written + written + written);
    openProgress();
    EXPECT_GT(progress.height(), withOneForm + 20);

    progress.resize(500, 350);
    QApplication::processEvents();
    const auto& grid = tests::control<QTableView>(progress, "ProgressGrid");
    EXPECT_GE(grid.viewport()->height(), grid.rowViewportPosition(5) + grid.rowHeight(5));
    auto& forms = tests::control<QTableWidget>(progress, "ProgressForms");
    forms.setFocus();
    for (int row = 0; row < forms.rowCount(); ++row) {
        const QRect last = forms.visualItemRect(forms.item(row, 3));
        EXPECT_TRUE(last.top() >= 0 && last.bottom() <= forms.viewport()->height()) << row;
        tests::press(progress, Qt::Key_Down);
    }
}

TEST_F(Progress, AnswersAreExportedAndKeptOrNotAndDeletedOnceTheQuestionIsAnswered)
{
    start();
    EXPECT_FALSE(button(openProgress(), "ProgressExport").isEnabled());
    tellOfAmare("Imperative", "2nd Person Sing", "ama", "ame, \"amo\"");
    QWidget& progress = openProgress();
    fake.chosenName = "mine.csv";
    tests::click(progress, "ProgressExport");
    const std::string answers = tests::bytesOf("mine.csv");
    EXPECT_EQ(answers, "time,exercise,word,place,asked,expected,written,right\r\n"
                       "2024-10-04T12:00:00+02:00,Conjugation,amare,"
                       "First Conjugation / Imperative / 2nd Person Sing,"
                       "\"amare, Imperative / 2nd Person Sing\",ama,\"ame, \"\"amo\"\"\",0\r\n");
    fake.chosenName = "no folder/mine.csv";
    tests::click(progress, "ProgressExport");
    EXPECT_TRUE(
        QString::fromStdString(fake.messages.back()).contains(QRegularExpression("not exported.*mine.csv")));

    tests::click(progress, "ProgressKeep");
    tellOfAmare("Imperative", "2nd Person Plur", "amate", "amate");
    fake.chosenName = "mine.csv";
    tests::click(progress, "ProgressExport");
    EXPECT_EQ(tests::bytesOf("mine.csv"), answers);
    EXPECT_FALSE(button(openProgress(), "ProgressKeep").property("checked").toBool());

    tests::click(progress, "ProgressDelete");
    EXPECT_EQ(tests::focusIn(tests::shown("ProgressErase")), "ProgressEraseCancel");
    tests::press(tests::shown("ProgressErase"), Qt::Key_Return);
    EXPECT_TRUE(button(progress, "ProgressDelete").isEnabled());
    const std::string whole = tests::bytesOf("progress.db");
    tests::writeFile("progress.db", std::string(5000, 'x'));
    tests::click(progress, "ProgressDelete");
    tests::click(tests::shown("ProgressErase"), "ProgressEraseOK");
    EXPECT_EQ(fake.messages.back(), "The answers were not deleted.");
    EXPECT_EQ(label(progress, "ProgressNothing"), "The answers cannot be read now.");
    tests::writeFile("progress.db", whole);
    tests::press(progress, Qt::Key_Escape);
    tests::click(openProgress(), "ProgressDelete");
    tests::click(tests::shown("ProgressErase"), "ProgressEraseOK");
    EXPECT_EQ(shownWindow("ProgressErase"), nullptr);
    EXPECT_FALSE(button(progress, "ProgressDelete").isEnabled());
    EXPECT_FALSE(tests::control<QTableView>(progress, "ProgressGrid").isVisible());
}

TEST_F(Progress, AReviewAsksWhatIsDueAndWhatWasMissedAsTheLast)
{
    start();
    tellOfThreeForms();
    tell("NounQuiz", "rex", "Third Declension / Genitive Singular", "Genitive", "Dative");
    QWidget& review = openReview();
    EXPECT_EQ(asked(review) + leftIn(review), "amare, Imperative, 2nd Person Sing3");
    duringPause([&] {
        EXPECT_EQ(label(review, "WhyLabel"), "ama<u>t</u>e &nbsp; This is the ending of the other number.");
        tests::type(review, "amate");
    });
    tests::answer(review, "amate");
    EXPECT_EQ(label(review, "WhyLabel"), "");
    EXPECT_EQ(label(review, "ReviewBefore"), "Before: ama, not amate");
    EXPECT_EQ(asked(review) + leftIn(review), "insula, word3");
    EXPECT_EQ(line(review, "ReviewAnswer").text(), "");

    tests::answer(review, "?");
    tests::answer(review, "and/or?");
    EXPECT_EQ(label(review, "ReviewBefore"), "");
    EXPECT_EQ(asked(review) + leftIn(review), "rex, Genitive Singular2");
    duringPause([&] { EXPECT_EQ(line(review, "ReviewAnswer").text(), "regis"); });
    tests::type(review, "reg/");
    tests::answer(review, "regis");
    EXPECT_EQ(asked(review) + leftIn(review), "amare, Imperative, 2nd Person Sing1");
    tests::answer(review, "ama");
    EXPECT_EQ(asked(review) + leftIn(review),
              "All that was due has been asked. 1 was missed and will come again.0");
    EXPECT_EQ(label(review, "ScoreLabel").trimmed(), "75%");
    EXPECT_EQ(tests::focusIn(review), "ReviewQuit");
    tests::press(review, Qt::Key_Return);
    EXPECT_EQ(shownWindow("Review"), nullptr);

    // The two that were right at once are due in a day; the miss that was corrected still lies in the first
    // box.
    tests::click(tests::shown("Progress"), "ProgressReview");
    EXPECT_EQ(asked(review) + leftIn(review), "amare, Imperative, 2nd Person Sing1");
    fake.day += 1;
    auto& kind = tests::control<QComboBox>(review, "ReviewKind");
    kind.setFocus();
    tests::press(review, Qt::Key_Down);
    tests::press(review, Qt::Key_Down);
    EXPECT_EQ(asked(review) + leftIn(review), "rex, Genitive Singular1");
    kind.setFocus();
    tests::press(review, Qt::Key_Down);
    EXPECT_EQ(asked(review), "Pronouns: Nothing is due today.") << "of others something is";
    tests::press(review, Qt::Key_Up);
    tests::press(review, Qt::Key_Return);
    EXPECT_EQ(tests::focusIn(review), "ReviewAnswer");
    kind.setFocus();
    tests::type(review, "verbis");
    EXPECT_EQ(kind.currentText() + line(review, "ReviewAnswer").text(), "Nounsverbis");
}

TEST_F(Progress, AReviewWithNothingDueSaysSoAndOneThatIsLeftInThePauseAsksNothingMore)
{
    start();
    QWidget& review = openReview();
    EXPECT_EQ(asked(review) + leftIn(review), "Nothing is due today.0");
    EXPECT_FALSE(button(review, "ReviewOK").isEnabled());
    EXPECT_FALSE(line(review, "ReviewAnswer").isEnabled());
    tests::press(review, Qt::Key_Escape);

    tellOfThreeForms();
    for (const auto& leave : tests::waysToLeave("ReviewQuit")) {
        tests::click(tests::shown("Progress"), "ProgressReview");
        duringPause([&] { leave(review); });
        tests::answer(review, "x");
        EXPECT_EQ(shownWindow("Review"), nullptr);
        EXPECT_EQ(shownWindow("Wrong"), nullptr);
        EXPECT_NE(shownWindow("Progress"), nullptr);
        EXPECT_EQ(leftIn(review), "3");
    }
}

} // namespace
