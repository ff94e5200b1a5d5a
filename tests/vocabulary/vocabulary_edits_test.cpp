#include "tests/support/fresh_state.h"
#include "vocabulary/vocabulary_edits.h"

namespace {

using vocabulary::vocabularyList;
using vocabulary::WordRecord;
using VocabularyEdits = tests::FreshState;

const WordRecord Rose{"rosa", "rose", "f."};
const WordRecord King{"re:x", "king", "m."};
const WordRecord Rome{"Ro:ma", "Rome, Italy", "f."};

std::vector<WordRecord> words(const vocabulary::VocabularyList::Words& table)
{
    return {table.begin() + 1, table.begin() + 1 + vocabularyList.WordCount};
}

void expectWords(const std::vector<WordRecord>& expected)
{
    EXPECT_EQ(words(vocabularyList.Loaded), expected);
    EXPECT_EQ(words(vocabularyList.Working), expected);
}

TEST_F(VocabularyEdits, AddAtTheEndChangeInPlaceAndCloseTheGap)
{
    for (const WordRecord& record : {Rose, King, Rome})
        EXPECT_TRUE(vocabulary::addWord(record));
    expectWords({Rose, King, Rome});
    vocabulary::acceptWord(2, {"re:gi:na", "queen", "f."});
    vocabulary::acceptWord(3, Rose);
    expectWords({Rose, {"re:gi:na", "queen", "f."}, Rose});
    vocabulary::deleteWord(1);
    expectWords({{"re:gi:na", "queen", "f."}, Rose});
    vocabulary::deleteWord(2);
    vocabulary::deleteWord(1);
    expectWords({});
    EXPECT_EQ(vocabularyList.Loaded[1], WordRecord{});
}

TEST_F(VocabularyEdits, StopAtThreeHundredWords)
{
    for (int i = 0; i < 300; ++i)
        EXPECT_TRUE(vocabulary::addWord(Rose));
    EXPECT_FALSE(vocabulary::addWord(King));
    EXPECT_EQ(vocabularyList.WordCount, 300);
    vocabulary::deleteWord(300);
    EXPECT_EQ(vocabularyList.Loaded[300], WordRecord{});
    EXPECT_TRUE(vocabulary::addWord(King));
    EXPECT_EQ(vocabularyList.Loaded[300], King);
}

TEST_F(VocabularyEdits, ArePendingUntilTheyAreSavedOrAListIsLoaded)
{
    EXPECT_FALSE(vocabulary::changesArePending());
    vocabulary::addWord(Rose);
    EXPECT_TRUE(vocabulary::changesArePending());
    EXPECT_TRUE(vocabulary::saveList("no/folder/words.lst"));
    EXPECT_TRUE(vocabulary::changesArePending());
    EXPECT_FALSE(vocabulary::saveList("words.lst"));
    EXPECT_FALSE(vocabulary::changesArePending());
    vocabulary::acceptWord(1, King);
    EXPECT_TRUE(vocabulary::changesArePending());
    vocabulary::loadList("missing.lst");
    EXPECT_TRUE(vocabulary::changesArePending());
    vocabulary::loadList("words.lst");
    EXPECT_FALSE(vocabulary::changesArePending());
    vocabulary::deleteWord(1);
    EXPECT_TRUE(vocabulary::changesArePending());
}

TEST_F(VocabularyEdits, BringTheCommasBackThatASaveHadReplaced)
{
    vocabulary::addWord(Rome);
    vocabulary::addWord(Rose);
    vocabulary::saveList("words.lst");
    EXPECT_EQ(vocabularyList.Working[1].translation, "Rome> Italy");
    EXPECT_EQ(vocabularyList.Loaded[1], Rome);
    vocabulary::acceptWord(2, King);
    expectWords({Rome, King});
}

} // namespace
