#include "tests/support/scripted_system.h"
#include "vexel/core/flashing.h"
#include "vexel/core/visual_element.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>

using namespace vexel;
using namespace vexel::test;

TEST(Flashing, SwitchesTheColoursOfAllElementsAtOnceAndBack)
{
    CTestHost host(60, 20);
    auto& one = *new CVisualElement(host.Root(), {20, 0}, alLeft);
    auto& two = *new CVisualElement(host.Root(), {20, 0}, alLeft);
    one.SetFgColor(color_table[4]);
    CBkFgRoutine routine;
    routine.AddElement(&one, color_table[9], color_table[6]);
    routine.AddElement(&two, color_table[1], color_table[3]);
    routine.AddElement(nullptr, color_table[1], color_table[1]);
    EXPECT_EQ(routine.GetCount(), 2);
    _color const ground = one.GetBkColor();

    routine.ProcessFlashed();
    EXPECT_EQ(one.GetFgColor(), color_table[9]);
    EXPECT_EQ(one.GetBkColor(), color_table[6]);
    EXPECT_EQ(two.GetFgColor(), color_table[1]);
    EXPECT_EQ(two.GetBkColor(), color_table[3]);

    routine.ProcessNormal();
    EXPECT_EQ(one.GetFgColor(), color_table[4]);
    EXPECT_EQ(one.GetBkColor(), ground);
}

TEST(Flashing, WithoutColoursTheSystemsHighlightIsShown)
{
    CTestHost host(60, 20);
    auto& element = *new CVisualElement(host.Root(), {20, 0}, alLeft);
    CBkFgRoutine routine;
    routine.AddElement(&element, color_table[0], color_table[0]);

    routine.ProcessFlashed();

    EXPECT_EQ(element.GetFgColor(), GetSysPalette()->GetColor(ISysPalette::scHighlightText));
    EXPECT_EQ(element.GetBkColor(), GetSysPalette()->GetColor(ISysPalette::scHighlight));
}

TEST(Flashing, ARecordWithoutAnElementDoesNothing)
{
    SBkFgElement none;
    none.ProcessFlashed();
    none.ProcessNormal();
    EXPECT_EQ(none.m_Element, nullptr);
    SPaletteElement nothing;
    nothing.ProcessFlashed();
    nothing.ProcessNormal();
    EXPECT_EQ(nothing.m_Target, nullptr);
}

TEST(Flashing, HandsPalettesToTheirTargetsAndBack)
{
    class CTarget : public IPaletteSupport
    {
    public:
        void SetPalette(vexel_ptr<ICustomPaletteEx> palette) override { m_Palette = palette; }
        vexel_ptr<ICustomPaletteEx> GetPalette() override { return m_Palette; }
        vexel_ptr<ICustomPaletteEx> m_Palette;
    } target;
    vexel_ptr<ICustomPaletteEx> const normal = CreateCustomPalette();
    vexel_ptr<ICustomPaletteEx> const flashed = CreateCustomPalette();
    target.m_Palette = normal;
    CPaletteRoutine routine;
    routine.AddElement(&target, flashed);
    routine.AddElement(nullptr, flashed);
    EXPECT_EQ(routine.GetCount(), 1);

    routine.ProcessFlashed();
    EXPECT_EQ(target.m_Palette.get(), flashed.get());
    routine.ProcessNormal();
    EXPECT_EQ(target.m_Palette.get(), normal.get());
}

TEST(Flashing, ATargetMayAddARecordWhileTheSetIsSwitched)
{
    class CTarget : public IPaletteSupport
    {
    public:
        explicit CTarget(CPaletteRoutine& routine) : m_Routine(routine) {}
        void SetPalette(vexel_ptr<ICustomPaletteEx> palette) override
        {
            ++m_Switches;
            for (int i = 0; i < 50; ++i)
                m_Routine.AddElement(this, palette);
        }
        vexel_ptr<ICustomPaletteEx> GetPalette() override { return {}; }
        int m_Switches = 0;

    private:
        CPaletteRoutine& m_Routine;
    };
    CPaletteRoutine routine;
    CTarget one(routine);
    CTarget two(routine);
    routine.AddElement(&one, CreateCustomPalette());
    routine.AddElement(&two, CreateCustomPalette());

    routine.ProcessFlashed();

    EXPECT_EQ(one.m_Switches, 1);  // what was added meanwhile waits for the next switching
    EXPECT_EQ(two.m_Switches, 1);
    EXPECT_EQ(routine.GetCount(), 102);
}

TEST(Flashing, AnElementMayAddARecordWhileTheSetIsSwitched)
{
    class CLamp : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        CBkFgRoutine* m_Routine = nullptr;
        int m_Changes = 0;

    protected:
        void AttributeChanged() override
        {
            if (!m_Routine)
                return;
            ++m_Changes;
            for (int i = 0; i < 50; ++i)
                m_Routine->AddElement(this, color_table[1], color_table[1]);
        }
    };
    CLamp one(nullptr, {5, 5}, alNone);
    CLamp two(nullptr, {5, 5}, alNone);
    CBkFgRoutine routine;
    routine.AddElement(&one, color_table[9], color_table[6]);
    routine.AddElement(&two, color_table[9], color_table[6]);
    one.m_Routine = &routine;
    two.m_Routine = &routine;

    routine.ProcessFlashed();

    EXPECT_EQ(one.m_Changes, 2);
    EXPECT_EQ(two.m_Changes, 2);
    EXPECT_EQ(two.GetBkColor(), color_table[6]);
    EXPECT_EQ(routine.GetCount(), 202);
}

TEST(Flashing, AColourOfValueZeroIsBlackAndNotNone)
{
    CTestHost host(60, 20);  // with a palette
    CVisualElement element(nullptr, {5, 5}, alNone);
    element.SetFgColor(color_table[6]);
    element.SetBkColor(color_table[3]);
    CBkFgRoutine routine;
    routine.AddElement(&element, _color(0), _color(0));

    routine.ProcessFlashed();

    EXPECT_EQ(element.GetFgColor(), _color(0));
    EXPECT_EQ(element.GetBkColor(), _color(0));
}

TEST(Flashing, AnElementThatDiesInItsFirstColourIsLeftAlone)
{
    // Dies in place, so that the test sees who still writes to it.
    class CMortal : public CVisualElement
    {
    public:
        explicit CMortal(bool& armed) : CVisualElement(nullptr, {5, 5}, alNone), m_Armed(armed) {}

    protected:
        void AttributeChanged() override
        {
            if (!m_Armed)
                return;
            void* const memory = this;
            this->~CMortal();
            std::memset(memory, 0, sizeof(CMortal));
        }

    private:
        bool& m_Armed;
    };
    for (bool const flashed : {true, false})
    {
        alignas(CMortal) unsigned char memory[sizeof(CMortal)];
        bool armed = false;
        SBkFgElement record;
        record.m_Element = ::new (memory) CMortal(armed);
        record.m_FlashedFg = record.m_NormalFg = color_table[6];
        record.m_FlashedBk = record.m_NormalBk = color_table[3];
        armed = true;

        if (flashed)
            record.ProcessFlashed();
        else
            record.ProcessNormal();

        EXPECT_EQ(std::count(std::begin(memory), std::end(memory), 0), static_cast<long>(sizeof(CMortal))) << flashed;
    }
}

TEST(Flashing, WithoutAPaletteOfTheSystemNoneStaysNone)
{
    CScriptedSystem system;
    system.m_HasPalette = false;
    CVisualElement element(nullptr, {5, 5}, alNone);
    element.SetFgColor(color_table[6]);
    element.SetBkColor(color_table[3]);
    CBkFgRoutine routine;
    routine.AddElement(&element, color_table[0], color_table[0]);

    routine.ProcessFlashed();

    EXPECT_EQ(element.GetFgColor(), color_table[0]);
    EXPECT_EQ(element.GetBkColor(), color_table[0]);
}
