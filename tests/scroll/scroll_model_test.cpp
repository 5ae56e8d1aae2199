// The contract of what can be scrolled: what its interfaces answer by themselves, and which operation goes on to which.

#include "tests/scroll/scroll_support.h"
#include "tests/support/virtual_order.h"
#include "vexel/scroll/central_part.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/scroll/scrollable_element_ex.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

// Implements what an interface leaves open, and nothing else.
template <class Interface> class COpen : public Interface
{
public:
    double GetFrom() const override { return 1; }
    double GetTo() const override { return 2; }
    void SetStart(double) override {}
    double GetStart() const override { return 3; }
    int GetMinScrollDistance() const override { return 4; }
};
class CBare : public COpen<IScrollModel>
{
public:
    bool IsFixedStepSize() const override { return false; }
    double GetStepSize(double) const override { return 5; }
    void SetStepSize(double, double) const override {}
    void SetMeasure(std::pair<double, int>) override {}
    std::pair<double, int> GetMeasure() const override { return {6.0, 7}; }
};
class CSimple : public COpen<ISimpleScrollModel>
{
public:
    void SetMeasure(std::pair<double, int>) override {}
    std::pair<double, int> GetMeasure() const override { return {6.0, 7}; }
};

class CBothAxes : public IHorzPhysicalScrollModel, public IVertPhysicalScrollModel
{
public:
    CLog m_Log;

    double GetHorzFrom() const override { return 10; }
    double GetHorzTo() const override { return 11; }
    void SetHorzStart(double value) override { m_Log.Add("horz(" + Describe(value) + ")"); }
    double GetHorzStart() const override { return 12; }
    int GetHorzStepInPixels() const override { return 13; }
    double GetVertFrom() const override { return 20; }
    double GetVertTo() const override { return 21; }
    void SetVertStart(double value) override { m_Log.Add("vert(" + Describe(value) + ")"); }
    double GetVertStart() const override { return 22; }
    int GetVertStepInPixels() const override { return 23; }
};

TEST(ScrollModel, ItsStepsMayBeShownInPartAndNothingRefreshesUnlessAModelSaysSo)
{
    CBare model;
    EXPECT_FALSE(model.IsInseparableStep());
    model.Update();
}

TEST(ScrollModel, ASimpleOneHasStepsOfOneThatCannotBeChanged)
{
    CSimple model;
    EXPECT_TRUE(model.IsFixedStepSize());
    model.SetStepSize(3, 9);
    EXPECT_EQ(model.GetStepSize(3), 1.0);
    EXPECT_EQ(model.GetStepSize(-7.5), 1.0);
    EXPECT_FALSE(model.IsInseparableStep());
}

TEST(ScrollModel, APhysicalOneIsMeasuredInPixelsForGood)
{
    COpen<IPhysicalScrollModel> model;
    model.SetMeasure({2.0, 3});
    EXPECT_EQ(model.GetMeasure(), (std::pair<double, int>{1.0, 1}));
    EXPECT_TRUE(model.IsFixedStepSize());
}

TEST(ScrollModel, OneClassIsTheModelOfBothAxes)
{
    CBothAxes both;
    IScrollModel& horz = static_cast<IHorzPhysicalScrollModel&>(both);
    IScrollModel& vert = static_cast<IVertPhysicalScrollModel&>(both);
    EXPECT_EQ(horz.GetFrom(), 10);
    EXPECT_EQ(horz.GetTo(), 11);
    EXPECT_EQ(horz.GetStart(), 12);
    EXPECT_EQ(horz.GetMinScrollDistance(), 13);
    EXPECT_EQ(vert.GetFrom(), 20);
    EXPECT_EQ(vert.GetTo(), 21);
    EXPECT_EQ(vert.GetStart(), 22);
    EXPECT_EQ(vert.GetMinScrollDistance(), 23);
    horz.SetStart(1.5);
    vert.SetStart(-2.5);
    EXPECT_EQ(both.m_Log.Take(), "horz(1.5) vert(-2.5)");
}

// Slots --------------------------------------------------------------------------------------------------------------

TEST(ScrollVirtualOrder, OfModels)
{
    ExpectOrder(2, &IScrollModel::GetFrom, &IScrollModel::GetTo, &IScrollModel::SetStart, &IScrollModel::GetStart,
                &IScrollModel::GetMinScrollDistance, &IScrollModel::IsFixedStepSize, &IScrollModel::GetStepSize,
                &IScrollModel::SetStepSize, &IScrollModel::SetMeasure, &IScrollModel::GetMeasure,
                &IScrollModel::IsInseparableStep, &IScrollModel::Update);
    using Horz = IHorzPhysicalScrollModel;
    ExpectOrder(14, &Horz::GetHorzFrom, &Horz::GetHorzTo, &Horz::SetHorzStart, &Horz::GetHorzStart,
                &Horz::GetHorzStepInPixels);
    using Vert = IVertPhysicalScrollModel;
    ExpectOrder(14, &Vert::GetVertFrom, &Vert::GetVertTo, &Vert::SetVertStart, &Vert::GetVertStart,
                &Vert::GetVertStepInPixels);
}

TEST(ScrollVirtualOrder, OfScrollableElements)
{
    struct SOpen : CScrollableElement
    {
        static std::size_t Check()
        {
            std::size_t const first = Place(&CScrollableElement::SetCentralPane);
            ExpectOrder(first, &CScrollableElement::SetCentralPane, &CScrollableElement::SetVertScroll,
                        &CScrollableElement::SetHorzScroll, &SOpen::ProcessRepeatOperation);
            return first;
        }
    };
    std::size_t const first = SOpen::Check();
    ExpectOrder(first + 4, &CScrollableElementEx::FillHorizontal, &CScrollableElementEx::FillVertical);
    ExpectOrder(first + 4, &CCentralPart::FillCoordInfo);

    using Part = CScrollContainer::CCentralPart;
    ExpectOrder(first + 4, static_cast<double (Part::*)() const>(&Part::GetHorzFrom), &Part::GetHorzTo,
                &Part::SetHorzStart, &Part::GetHorzStart, &Part::GetHorzStepInPixels, &Part::GetVertFrom,
                &Part::GetVertTo, &Part::SetVertStart, &Part::GetVertStart, &Part::GetVertStepInPixels);
}

TEST(ScrollVirtualOrder, Bases)
{
    static_assert(std::is_base_of_v<CScrollBarNotify, CScrollElement>);
    static_assert(std::is_base_of_v<CScrollableElement, CScrollBox>);
    static_assert(std::is_base_of_v<CScrollBox, CScrollContainer>);
    static_assert(std::is_base_of_v<CLayoutFlavor, CScrollableElementEx>);
    static_assert(!std::is_convertible_v<CScrollableElement*, CRepeatableOperation*>, "the repetition is private");
    static_assert(static_cast<int>(sdNone) == 0 && static_cast<int>(sdForward) == 1 &&
                  static_cast<int>(sdBackward) == 2);
    static_assert(CScrollBox::ctHorizontal == 1 && CScrollBox::ctVertical == 2);
    static_assert(CScrollElement::spAutomatic == 0 && CScrollElement::spAlways == 1 && CScrollElement::spNever == 2);
}

}  // namespace
