#include "nouns/noun_tables.h"
#include "shell/looks.h"
#include "shell/settings.h"
#include "tests/support/full_disk.h"
#include "tests/support/window_test.h"
#include "verbdrills/verb_question.h"
#include "verbs/verb_tables.h"

namespace {

using shell::settings;
using tests::label;
using tests::press;
using tests::shown;
using tests::shownWindow;

class Tables : public tests::WindowTest {
protected:
    QWidget& openTables() { return open("FileTables", "Tables"); }

    static auto& view() { return tests::control<QTableView>(shown("Tables"), "TablesView"); }
    static auto& tree() { return tests::control<QTreeView>(shown("Tables"), "TablesWords"); }
    static std::string title() { return label(shown("Tables"), "TablesTitle").toStdString(); }

    static std::string chosen(int role = Qt::DisplayRole)
    {
        return view().currentIndex().data(role).toString().toStdString();
    }

    // What stands in a line of the table, behind its name, with what the tips say.
    static std::string lineOf(int row)
    {
        const QAbstractItemModel& page = *view().model();
        QString text = page.headerData(row, Qt::Vertical).toString();
        for (int column = 0; column < page.columnCount(); ++column) {
            const QModelIndex cell = page.index(row, column);
            const QString tip = cell.data(Qt::ToolTipRole).toString();
            text += " " + cell.data().toString() + (tip.isEmpty() ? "" : " [" + tip + "]");
        }
        return text.toStdString();
    }

    static void choose(const char* word)
    {
        tests::fill(line(shown("Tables"), "TablesFilter"), word);
        press(shown("Tables"), Qt::Key_Return);
    }

    // The title of the table that F2 opens in a window; empty where it opens none. The window stays.
    static std::string titleAfterF2(QWidget& window)
    {
        if (QWidget* const before = shownWindow("Tables"))
            before->close();
        press(window, Qt::Key_F2);
        EXPECT_TRUE(window.isVisible());
        return shownWindow("Tables") == nullptr ? "" : title();
    }
};

// The forms are those of a grammar, and where they are not, its own stand behind them.
TEST_F(Tables, ShowAWordAsAGrammarPrintsItAndWhatAGrammarHasInstead)
{
    QWidget& menu = start();
    tests::choose(menu, "VowelLengthVal");
    tests::choose(menu, "NADGABOrder");
    openTables();
    EXPECT_EQ(lineOf(0) + lineOf(1), " Indicative Active     Present amo: ama:s amat ama:mus ama:tis amant");
    for (const auto& [word, row, text] :
         {std::tuple{"ESSE", 8, "Present sim si:s sit si:mus si:tis sint"},
          {"VELLE", 11, "Pluperfect voluissem voluisse:s voluisset voluisse:mus voluisse:tis voluissent"},
          {"regere", 12, " Imperative Active     "},
          {"ferre", 16, "Imperfect ferebar [sic: a grammar has “fere:bar”.]"},
          {"res", 2, "Genitive re:i: [sic: a grammar has “rei:”.] re:rum"},
          {"ílle", 0, ""},
          {"ille", 1, "Accusative illum illam illud illo:s illa:s illa"}}) {
        choose(word);
        EXPECT_EQ(lineOf(row).substr(0, std::string(text).size()), text) << title();
    }
    EXPECT_EQ(view().model()->rowCount(), 5);
    choose("velle");
    EXPECT_EQ(view().model()->rowCount(), 12) << "two moods of the active, and no imperative";
    EXPECT_EQ(view().model()->columnCount(), 6);
}

TEST_F(Tables, NarrowTheListByWhatIsTypedAndKeepTheChosenWordWhereItIsLeft)
{
    QWidget& window = openTables();
    auto& filter = line(window, "TablesFilter");
    choose("RĒ:GERE");
    EXPECT_EQ(title(), "regere, Third Conjugation");
    EXPECT_EQ(tree().model()->rowCount(), 1);
    tests::fill(filter, "ere");
    EXPECT_EQ(title(), "regere, Third Conjugation");
    EXPECT_EQ(tree().currentIndex().data(), "regere");
    tests::fill(filter, "puell");
    EXPECT_EQ(tree().model()->rowCount(), 1) << "the model word in the title of its group does not count";
    EXPECT_FALSE(tree().currentIndex().isValid());
    EXPECT_EQ(title(), "regere, Third Conjugation");
    press(window, Qt::Key_Down);
    EXPECT_EQ(title(), "puella (f. -ae)");
    EXPECT_EQ(tests::focusIn(window), "TablesWords");
    press(window, Qt::Key_Tab);
    press(window, Qt::Key_Down);
    EXPECT_EQ(chosen() + ", " + chosen(Qt::AccessibleDescriptionRole), "puellae, singular Genitive");
    press(window, Qt::Key_Tab);
    EXPECT_EQ(tests::focusIn(window), "TablesCopy");
    EXPECT_EQ(label(window, "TablesFilterState"), "");
    tests::fill(filter, "xyz");
    press(window, Qt::Key_Down);
    EXPECT_EQ(title() + label(window, "TablesFilterState").toStdString(), "puella (f. -ae)Not in the lists");
    window.resize(1000, 700);
    choose("sermo");
    QApplication::processEvents();
    const QModelIndex group = tree().currentIndex().parent();
    EXPECT_GE(tree().visualRect(group).width(), tree().sizeHintForIndex(group).width()) << "cut off";
    const int width = tree().width();
    choose("aedificare");
    QApplication::processEvents();
    EXPECT_EQ(tree().width(), width);
}

TEST_F(Tables, TellAllThatAFormCanBeAndShowItInItsTable)
{
    QWidget& window = openTables();
    auto& readings = list(window, "TablesReadings");
    EXPECT_TRUE(readings.isHidden());
    tests::type(window, "xyz");
    EXPECT_EQ(label(window, "TablesState"), "Not in the lists");
    tests::fill(line(window, "TablesForm"), " AMĒT");
    EXPECT_EQ(tests::rows(readings),
              QStringList{"amet: amare, 3rd Person Sing, First Conjugation, Present Subjunctive"});
    tests::fill(line(window, "TablesForm"), "puella");
    EXPECT_EQ(readings.viewport()->height(), 2 * readings.sizeHintForRow(0));
    tests::fill(line(window, "TablesForm"), "reges");
    ASSERT_EQ(readings.count(), 3);
    EXPECT_EQ(readings.viewport()->height(), 3 * readings.sizeHintForRow(0));
    press(window, Qt::Key_Return);
    EXPECT_EQ(title() + chosen(), "regere, Third Conjugationreges");
    press(window, Qt::Key_Down);
    press(window, Qt::Key_Down, 2);
    EXPECT_EQ(tests::focusIn(window), "TablesReadings");
    EXPECT_EQ(title() + ", " + chosen(Qt::AccessibleDescriptionRole), "rex (m. regis), Plural Accusative");
    tests::clickRow(readings, 1);
    EXPECT_EQ(chosen(Qt::AccessibleDescriptionRole), "Plural Nominative");
    choose("puella");
    openTables();
    EXPECT_EQ(readings.count() - readings.selectedItems().size(), 3) << "they are another word's now";
    // Marks and macrons in the forms alone: the colon behind a form is none.
    settings.ShowVowelLength = platform::FlagTrue;
    shell::looks.ShowMacrons = true;
    openTables();
    tests::fill(line(window, "TablesForm"), "ama");
    tests::fill(line(window, "TablesFilter"), "cap");
    EXPECT_EQ(tests::rows(readings).first(), "amā: amāre, 2nd Person Sing, First Conjugation, Imperative");
    tests::clickRow(readings, 0);
    EXPECT_EQ(tree().currentIndex().data(), "amāre") << "the filter hides it";
    // The drill shows the stems of the list without their marks.
    choose("rex");
    view().setFocus();
    press(window, Qt::Key_Down);
    EXPECT_EQ(chosen() + label(window, "TablesRemark").toStdString(), "rēgisIn the drill: “regis”.");
}

TEST_F(Tables, OpenAgainInTheSizeThatTheTypeNeedsOrTheLearnerGaveAndTakeANewFormForTheOld)
{
    QWidget& menu = start();
    const auto reopenedAfter = [&](Qt::Key key) {
        press(shown("Tables"), Qt::Key_Escape);
        QApplication::setActiveWindow(&menu);
        QTest::keyClick(&menu, key, Qt::ControlModifier);
        QApplication::processEvents();
        return openTables().size();
    };
    tests::type(openTables(), "ama");
    EXPECT_LT(reopenedAfter(Qt::Key_Minus).height(), reopenedAfter(Qt::Key_0).height());
    shown("Tables").resize(700, 555);
    EXPECT_EQ(reopenedAfter(Qt::Key_Minus), QSize(700, 555));
    tests::type(shown("Tables"), "rex");
    EXPECT_EQ(line(shown("Tables"), "TablesForm").text(), "rex");
}

TEST_F(Tables, NameTensesAndCasesAsReadingsAndAnswersKeptDo)
{
    tests::choose(start(), "GermanLang");
    QWidget& window = openTables();
    EXPECT_EQ(lineOf(6).substr(0, 21), "Futur Perfekt amavero");
    tests::fill(line(window, "TablesForm"), "regem");
    EXPECT_EQ(tests::rows(list(window, "TablesReadings")).back(), "regem: rex, Einzahl Akkusativ");
    choose("qui-");
    EXPECT_EQ(lineOf(0).substr(0, 13) + ", " + chosen(Qt::AccessibleDescriptionRole),
              "Nominativ qui, Mask. Sing. Nominativ");
}

TEST_F(Tables, OpenByF2AtTheWordThatStandsInADrillOrListAndCostNothing)
{
    tests::doubleClickRow(list(open("FileConj", "ConjugationChoose"), "ConjugationList"), 0);
    QWidget& drill = shown("Conjugation");
    tests::type(drill, "am");
    EXPECT_EQ(titleAfterF2(drill), label(drill, "VerbLabel").toStdString() + ", First Conjugation");
    EXPECT_EQ(box(drill, "ConjText", 0).text() + label(drill, "ScoreLabel"), "am");

    tests::doubleClickRow(list(open("FilePron", "PronounChooser"), "PronounList"), 3);
    EXPECT_EQ(titleAfterF2(shown("PronounSingular")), "ille-illa-illud (that [person/thing])");

    tests::doubleClickRow(list(open("FileDecl", "DeclinationChoose"), "DeclinationList"), 0);
    QWidget& modal = shown("Declination");
    EXPECT_EQ(titleAfterF2(modal).find(nouns::nounTables.NounForms[1][1] + " ("), 0U);
    EXPECT_EQ(shown("Tables").windowHandle()->transientParent(), modal.windowHandle());
    tests::fill(line(shown("Tables"), "TablesForm"), "amet");
    press(shown("Tables"), Qt::Key_Return);
    EXPECT_EQ(title(), "amare, First Conjugation");
    tree().collapseAll();
    press(shown("Tables"), Qt::Key_Escape);
    EXPECT_TRUE(modal.isVisible() && shownWindow("Tables") == nullptr);
    press(modal, Qt::Key_F2);
    EXPECT_EQ(tree().currentIndex().data().toString().toStdString(), title());
    EXPECT_TRUE(tree().visualRect(tree().currentIndex()).isValid()) << "its branch is open";
    EXPECT_EQ(line(shown("Tables"), "TablesForm").text(), "");
    EXPECT_EQ(chosen(Qt::AccessibleDescriptionRole), "singular Nominative") << "not the form last looked up";
    shown("Tables").setWindowState(Qt::WindowMinimized);
    press(modal, Qt::Key_F2);
    EXPECT_FALSE(shown("Tables").isMinimized());
    press(modal, Qt::Key_Escape);
    EXPECT_EQ(shown("Tables").windowHandle()->transientParent(), shown("DeclinationChoose").windowHandle());
    tests::doubleClickRow(list(shown("DeclinationChoose"), "DeclinationList"), 1);
    EXPECT_EQ(shown("Tables").windowHandle()->transientParent(), modal.windowHandle());

    QWidget& verbs = open("FileVerbManager", "VerbManager");
    tests::clickRow(list(verbs, "VMFormsList"), 1);
    tests::fill(line(verbs, "VerbManagerLatinForms0"), "cant");
    tests::click(verbs, "VerbManagerAdd");
    EXPECT_EQ(titleAfterF2(verbs), "cantare, First Conjugation");
    tests::clickRow(list(verbs, "VMFormsList"), 12);
    tests::fill(line(shown("Tables"), "TablesFilter"), "amare");
    EXPECT_EQ(titleAfterF2(verbs), "") << "a new verb";
    press(verbs, Qt::Key_F2);
    tests::fill(line(verbs, "VerbManagerLatinForms0"), "salt");
    tests::click(verbs, "VerbManagerAdd");
    EXPECT_EQ(titleAfterF2(verbs), "saltare, First Conjugation");
    tests::clickRow(list(verbs, "VMFormsList"), 0);
    tests::fill(line(verbs, "VerbManagerLatinForms0"), "trah");
    tests::click(verbs, "VerbManagerAdd");
    QApplication::processEvents();
    EXPECT_EQ(tree().model()->index(0, 0, tree().model()->index(0, 0)).data().toString(), "trahare")
        << "at once";
    QWidget& nouns = open("FileNounManager", "NounHandler");
    press(nouns, Qt::Key_End);
    tests::clickRow(list(nouns, "NHNounList"), 1);
    EXPECT_EQ(titleAfterF2(nouns), "dies (f)");
}

TEST_F(Tables, OpenByF2InAQuizOnlyOnceTheQuestionIsSolved)
{
    QWidget& quiz = open("QuizButton", "Probatio");
    const auto infinitive = [] {
        std::string name = verbs::verbTables.Infinitive[verbdrills::verbQuiz.QuizConjugation];
        std::erase(name, ':');
        return name;
    };
    EXPECT_EQ(titleAfterF2(quiz), "");
    tests::click(quiz, "QuizOK");
    EXPECT_EQ(titleAfterF2(quiz), "") << "a wrong answer leaves the question open";
    tests::click(quiz, "QuizQuestion");
    EXPECT_EQ(titleAfterF2(quiz).find(infinitive()), 0U);
    tests::click(quiz, "QuizSkip");
    EXPECT_EQ(titleAfterF2(quiz), "");
    verbdrills::verbQuiz.QuizRow = 1;
    verbdrills::identifyForm();
    tests::clickRow(list(quiz, "QuizConjList"), verbdrills::verbQuiz.QuizConjugation - 1);
    tests::clickRow(list(quiz, "QuizTenseList"), 0);
    duringPause([&] { EXPECT_EQ(titleAfterF2(quiz).find(infinitive()), 0U); });
    tests::click(quiz, "QuizOK");
    EXPECT_EQ(titleAfterF2(quiz), "");

    QWidget& nouns = open("FileNounQuiz", "NounQuiz");
    EXPECT_EQ(titleAfterF2(nouns), "");
    duringPause([&] { EXPECT_NE(titleAfterF2(nouns), ""); });
    tests::click(nouns, "NQOK");
    EXPECT_EQ(titleAfterF2(nouns), "");
}

TEST_F(Tables, CopyAndSaveTheTableAsTextHtmlAndPdfAndTellWhatCannotBeWritten)
{
    QWidget& window = openTables();
    choose("res");
    view().setFocus();
    press(window, Qt::Key_Down);
    EXPECT_EQ(label(window, "TablesRemark"), "sic: here “re:i:”; a grammar has “rei:”.");
    press(window, Qt::Key_Down, 2);
    EXPECT_EQ(label(window, "TablesRemark"), "");
    tests::click(window, "TablesCopy");
    EXPECT_EQ(QToolTip::text(), "Copied");
    const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied.text().section('\n', 0, 4),
              "res (f)\n\n\tSingular\tPlural\nNominative\tres\tres\nGenitive\trei (sic)\trerum");
    EXPECT_TRUE(copied.html().contains("<table"));
    tests::click(window, "TablesSave");
    for (const auto& [name, file, begin] : {std::tuple{"a.html", "a.html", "<!DOCTYPE HTML"},
                                            {"b.HTM", "b.HTM", "<!DOCTYPE HTML"},
                                            {"c", "c.pdf", "%PDF-"},
                                            {"Kap.II", "Kap.II", "%PDF-"}}) {
        fake.chosenName = name;
        tests::click(window, "TablesSave");
        EXPECT_EQ(tests::bytesOf(file).find(begin), 0U) << file;
    }
    EXPECT_EQ(fake.offeredNames.at(1), "res.pdf");
    EXPECT_NE(tests::bytesOf("a.html").find("rei sic: here “re:i:”; a grammar has “rei:”."),
              std::string::npos);
    const std::string before = tests::bytesOf("c.pdf");
    fake.chosenName = "c.pdf";
    EXPECT_TRUE(fake.messages.empty());
    const tests::FullDisk full;
    tests::click(window, "TablesSave");
    EXPECT_EQ(fake.messages.size(), 1U);
    EXPECT_EQ(tests::bytesOf("c.pdf"), before);
}

} // namespace
