#include "nouns/noun_question.h"
#include "shell/settings.h"
#include "tests/support/full_disk.h"
#include "tests/support/window_test.h"
#include "verbdrills/verb_question.h"

namespace {

using shell::settings;
using tests::label;
using tests::press;

class Tables : public tests::WindowTest {
protected:
    QWidget& openTables() { return open("FileTables", "Tables"); }

    static auto& view() { return tests::control<QTableView>(tests::shown("Tables"), "TablesView"); }
    static auto& tree() { return tests::control<QTreeView>(tests::shown("Tables"), "TablesWords"); }

    // What stands in a line of the table, with its name, and "*" behind a form that bears "sic".
    static QString lineOf(int row)
    {
        const QAbstractItemModel& page = *view().model();
        QString line = page.headerData(row, Qt::Vertical).toString() + ":";
        for (int column = 0; column < page.columnCount(); ++column) {
            const QModelIndex cell = page.index(row, column);
            line += " " + cell.data().toString() + (cell.data(Qt::ToolTipRole).isValid() ? "*" : "");
        }
        return line;
    }

    static QString chosenForm() { return view().currentIndex().data().toString(); }
    static QString title() { return label(tests::shown("Tables"), "TablesTitle"); }

    static void pressF2In(QWidget& window)
    {
        if (QWidget* const before = tests::shownWindow("Tables"))
            before->close();
        press(window, Qt::Key_F2);
    }
};

TEST_F(Tables, ShowAWordOfEachKindAsAGrammarPrintsItAndWhatAGrammarHasInstead)
{
    settings.ShowVowelLength = platform::FlagTrue;
    QWidget& window = openTables();
    EXPECT_EQ(lineOf(0) + lineOf(1), "Indicative Active:      Present: amo amas amat amamus amatis amant");
    auto& filter = line(window, "TablesFilter");
    for (const auto& [typed, row, text, tip] :
         {std::tuple{"ESSE", 7, "Present: sim sis sit simus sitis sint", ""},
          {"reg", 25, "Pluperfect: rectus essem* rectus esses* rectus esset* recti essemus recti essetis recti essent", ""},
          {"dea", 2, "Dative: deae deabus", ""},
          {"ille", 1, "Genitive: illius* illius* illius* illorum illarum illorum", ""}}) {
        tests::fill(filter, typed);
        press(window, Qt::Key_Return);
        EXPECT_EQ(lineOf(row), text) << title().toStdString();
    }
}

} // namespace
