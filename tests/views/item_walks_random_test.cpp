// Walks over random models, against walks that ask for item after item; and positions to items and back.

#include "vexel/platform/convert.h"
#include "vexel/testing/random.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/item_walks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <map>

using namespace vexel;
using vexel::test::CTestRandom;

namespace
{

// Item by item, as one would do it by hand -----------------------------------------------------------------------------
int SlowLastVisible(IDiscreteItemViewModel const& model)
{
    int const start = model.GetStartItem();
    int const count = model.GetCount();
    long long room = model.GetViewSize();
    if (room < model.GetItemSize(start) || start >= count - 1)
        return start;
    int i = start;
    while (i < count - 1)
    {
        room -= model.GetItemSize(i);
        i += 1;
        if (room < model.GetItemSize(i))
            return i - 1;
    }
    return count - 1;
}

int SlowCalcStart(IDiscreteItemViewModel const& model, int item)
{
    if (item < 0 || model.GetCount() < 1)
        return 0;
    int i = item;
    long long room = model.GetViewSize();
    if (room <= model.GetItemSize(i))
        return i;
    while (i > 0)
    {
        room -= model.GetItemSize(i);
        i -= 1;
        if (room <= model.GetItemSize(i))
            return i + 1;
    }
    return 0;
}

long long SlowSum(IBaseItemViewModel const& model, int from, int to)
{
    long long sum = 0;
    for (int i = from; i < to; ++i)
        sum += model.GetItemSize(i);
    return sum;
}

int SlowHit(IBaseItemViewModel const& model, long long pos, int first)
{
    for (int i = first; i < model.GetCount(); ++i)
    {
        if (pos < model.GetItemSize(i))
            return i;
        pos -= model.GetItemSize(i);
    }
    return model.m_StretchLastItem ? model.GetCount() - 1 : -1;
}

// Answers like its base, which it must be asked for item by item.
class CForeignRows : public CDefaultDiscreteItemViewModel
{};

class CForeignColumns : public CDefaultColumnViewModel
{};

// Sizes for a model of up to some thousand items: few, many or all exceptions, so that several blocks are filled.
template <class Model> void MakeRandom(CTestRandom& random, Model& model)
{
    int const count = random.Chance(10) ? random.Int(0, 2000) : random.Int(0, 40);
    int const defaultSizes[] = {0, 1, 2, 7, 20, 1000, -3};
    model.SetDefaultItemSize(random.Pick(defaultSizes));
    model.SetCount(count);
    int const percent = random.Int(0, 100);
    for (int i = 0; i < count + 3; ++i)
        if (random.Chance(percent))
            model.SetItemSize(i, random.Int(0, 40));
    model.m_StretchLastItem = random.Chance(20);
}

TEST(RandomWalks, OverRowsAgreeWithAWalkItemByItem)
{
    CTestRandom random;
    for (int round = 0; round < 1500; ++round)
    {
        CDefaultDiscreteItemViewModel known;
        CForeignRows foreign;
        std::uint64_t const seed = random.Next();
        CTestRandom one(seed), two(seed);
        MakeRandom(one, known);
        MakeRandom(two, foreign);
        int const count = known.GetCount();
        int const view = random.Chance(10) ? -1 : random.Int(0, random.Chance(20) ? 20000 : 400);
        int const start = random.Int(0, count);
        for (IDiscreteItemViewModel* const model :
             {static_cast<IDiscreteItemViewModel*>(&known), static_cast<IDiscreteItemViewModel*>(&foreign)})
        {
            model->SetStartItem(start);
            model->SetViewSize(view, false);
            SCOPED_TRACE(::testing::Message() << "round " << round << ", count " << count << ", view " << view
                                              << ", start " << model->GetStartItem());
            ASSERT_EQ(Utils::GetLastVisibleItem(model), SlowLastVisible(*model));
            ASSERT_EQ(Utils::CalcMaxStart(model), SlowCalcStart(*model, count - 1));
            for (int i = 0; i < 5; ++i)
            {
                int const item = random.Int(-2, count + 2);
                ASSERT_EQ(Utils::CalcStart(model, item), SlowCalcStart(*model, item)) << item;
                ASSERT_EQ(Utils::GetStartItem(model, item), SlowCalcStart(*model, item)) << item;
                int const a = random.Int(0, count), b = random.Int(0, count);
                ASSERT_EQ(Utils::GetItemsSize(model, a, b), SlowSum(*model, std::min(a, b), std::max(a, b)));
                int const pos = random.Int(-2, view + 2);
                bool const valid = 0 <= pos && pos <= view && count > 0;
                ASSERT_EQ(Utils::HitTest(model, pos), valid ? SlowHit(*model, pos, model->GetStartItem()) : -1) << pos;
            }
        }
    }
}

TEST(RandomWalks, OverColumnsAgreeWithAWalkItemByItem)
{
    CTestRandom random;
    for (int round = 0; round < 500; ++round)
    {
        CDefaultColumnViewModel known;
        CForeignColumns foreign;
        std::uint64_t const seed = random.Next();
        CTestRandom one(seed), two(seed);
        MakeRandom(one, known);
        MakeRandom(two, foreign);
        int const count = known.GetCount();
        int const full = static_cast<int>(std::max(SlowSum(known, 0, count), 0LL));
        int const view = random.Int(0, 400);
        int const offset = random.Int(0, full + 10);
        for (IContinuousItemViewModel* const model :
             {static_cast<IContinuousItemViewModel*>(&known), static_cast<IContinuousItemViewModel*>(&foreign)})
        {
            if (count > known.GetItemSizes().GetCount() && known.GetDefaultItemSize() >= 0)
            {
                ASSERT_EQ(model->GetFullItemsSize(), full);
            }
            model->SetViewSize(view, false);
            model->SetOffset(offset);
            SCOPED_TRACE(::testing::Message() << "round " << round << ", count " << count << ", view " << view
                                              << ", offset " << model->GetOffset());
            for (int i = 0; i < 5; ++i)
            {
                int const pos = random.Int(-2, view + 2);
                bool const valid = 0 <= pos && pos <= view && count > 0;
                ASSERT_EQ(Utils::HitTest(model, pos),
                          valid ? SlowHit(*model, static_cast<long long>(pos) + model->GetOffset(), 0) : -1)
                    << pos;
                int const item = random.Int(-2, count);
                ASSERT_EQ(Utils::GetItemOffset(model, item), SlowSum(*model, 0, item)) << item;
            }
        }
    }
}

// The first and the last pixel of an item's span hit that item, the pixels beside it don't, up to the largest counts.
template <class Model> void ExpectSpansToBeHit(CTestRandom& random, Model& model, int around)
{
    range<int> const whole{0, model.GetViewSize()};
    for (int i = 0; i < 20; ++i)
    {
        int const item = std::clamp(SaturateToInt(std::int64_t{around} + random.Int(-30, 30)), 0, model.GetCount() - 1);
        range<int> const span = Utils::GetItemIndexRangeEx(&model, item, whole);
        if (span.second < span.first)
            continue;
        for (int const pos : {span.first - 1, span.first, span.second, span.second + 1})
        {
            if (pos < whole.first || pos > whole.second)
                continue;
            bool const inside = span.first <= pos && pos <= span.second;
            ASSERT_EQ(Utils::HitTest(&model, pos) == item, inside) << item << " at " << pos;
            if (!inside)
                continue;
            range<int> const cut{std::max(span.first, whole.first), std::min(span.second, whole.second)};
            ASSERT_EQ(Utils::GetItemRange(&model, pos, whole), cut);
        }
    }
}

TEST(RandomWalks, FromAPositionToAnItemAndBack)
{
    CTestRandom random;
    for (int round = 0; round < 2000; ++round)
    {
        int const counts[] = {1, 2, 50, 100000, 1 << 30, INT_MAX};
        int const count = random.Pick(counts);
        int const start = random.Int(0, count - 1);
        CDefaultDiscreteItemViewModel rows;
        CDefaultColumnViewModel columns;
        rows.SetDefaultItemSize(random.Int(1, 60));
        columns.SetDefaultItemSize(random.Int(1, std::max(1, std::min(60, INT_MAX / count))));
        rows.SetCount(count);
        columns.SetCount(count);
        for (int i = 0; i < 100; ++i)
        {
            int const near = std::clamp(SaturateToInt(std::int64_t{start} + random.Int(-50, 50)), 0, count - 1);
            int const item = random.Bool() ? near : random.Int(0, count - 1);
            rows.SetItemSize(item, random.Int(1, 90));
            columns.SetItemSize(item, random.Int(1, 90));
        }
        SCOPED_TRACE(::testing::Message() << "round " << round << ", count " << count << ", start " << start);

        rows.SetViewSize(random.Int(0, 2000), false);
        rows.SetStartItem(start);
        ExpectSpansToBeHit(random, rows, rows.GetStartItem());

        columns.SetViewSize(random.Int(0, 2000), false);
        columns.SetOffset(random.Int(0, columns.GetFullItemsSize()));
        ExpectSpansToBeHit(random, columns, std::max(Utils::HitTest(&columns, 0), 0));
    }
}

}  // namespace
