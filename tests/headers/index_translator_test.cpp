// Where items are after others were added, removed or moved.

#include "vexel/headers/index_translator.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vexel;

namespace
{

// The new index; "gone" in front of it if the item was removed. Asks with and without the second answer.
std::string Translate(IIndexTranslator const& translator, int index)
{
    bool removed = !(index & 1);  // must be overwritten
    int const answer = translator.TranslateIndex(index, &removed);
    EXPECT_EQ(translator.TranslateIndex(index, nullptr), answer);
    return (removed ? "gone " : "") + std::to_string(answer);
}

TEST(AddRemoveTranslator, ItemsBehindAnInsertionMoveOn)
{
    CAddRemoveTranslator const translator(4, 3);
    EXPECT_TRUE(translator.TranslationIsPresented());
    EXPECT_EQ(Translate(translator, 0), "0");
    EXPECT_EQ(Translate(translator, 4), "4");
    EXPECT_EQ(Translate(translator, 5), "8");
    EXPECT_EQ(Translate(translator, -1), "-1");
    EXPECT_EQ(Translate(translator, INT_MAX), "2147483647");
    EXPECT_EQ(Translate(CAddRemoveTranslator(-1, 2), 0), "2");
}

TEST(AddRemoveTranslator, RemovedItemsAnswerTheOneBeforeThem)
{
    CAddRemoveTranslator const translator(4, -2);
    EXPECT_EQ(Translate(translator, 4), "4");
    EXPECT_EQ(Translate(translator, 5), "gone 4");
    EXPECT_EQ(Translate(translator, 6), "gone 4");
    EXPECT_EQ(Translate(translator, 7), "5");
    EXPECT_EQ(Translate(translator, 0), "0");
    EXPECT_EQ(Translate(CAddRemoveTranslator(-1, -2), 1), "gone -1");
    EXPECT_EQ(Translate(CAddRemoveTranslator(4, INT_MIN), INT_MAX), "gone 4");
}

TEST(AddRemoveTranslator, ADeltaOfZeroMovesNothing)
{
    CAddRemoveTranslator const translator(4, 0);
    EXPECT_EQ(Translate(translator, 4), "4");
    EXPECT_EQ(Translate(translator, 5), "5");
    EXPECT_EQ(Translate(translator, 3), "3");
}

TEST(MoveTranslator, ForwardThoseBetweenGoBackByOne)
{
    CMoveTranslator const translator(2, 5);
    EXPECT_TRUE(translator.TranslationIsPresented());
    EXPECT_EQ(Translate(translator, 1), "1");
    EXPECT_EQ(Translate(translator, 2), "5");
    EXPECT_EQ(Translate(translator, 3), "2");
    EXPECT_EQ(Translate(translator, 5), "4");
    EXPECT_EQ(Translate(translator, 6), "6");
}

TEST(MoveTranslator, BackThoseBetweenGoOnByOne)
{
    CMoveTranslator const translator(5, 2);
    EXPECT_EQ(Translate(translator, 1), "1");
    EXPECT_EQ(Translate(translator, 2), "3");
    EXPECT_EQ(Translate(translator, 4), "5");
    EXPECT_EQ(Translate(translator, 5), "2");
    EXPECT_EQ(Translate(translator, 6), "6");
}

TEST(MoveTranslator, OntoItselfMovesNothing)
{
    EXPECT_EQ(Translate(CMoveTranslator(3, 3), 3), "3");
    EXPECT_EQ(Translate(CMoveTranslator(3, 3), 4), "4");
    EXPECT_EQ(Translate(CMoveTranslator(), 0), "0");
}

}  // namespace
