#include "vexel/testing/signal_log.h"

#include "tests/testing/lamp.h"
#include "vexel/core/drag_drop.h"
#include "vexel/platform/events.h"

#include <memory>

namespace vexel
{
namespace
{

using namespace vexel::test;

class SignalLog : public ::testing::Test
{
protected:
    CTestHost m_Host{100, 40};
    CLamp m_Lamp{m_Host.Root(), {20, 20}, alLeft};
    CLamp m_Other{m_Host.Root(), {20, 20}, alRight};
};

TEST_F(SignalLog, WritesWhatFiresWithoutTheEmitter)
{
    CSignalLog log(m_Lamp.m_SigLit, "lit");
    log.Add(m_Other.m_SigLit, "other");
    m_Lamp.SetLit(true);
    m_Other.SetLit(true);
    m_Lamp.SetLit(false);
    EXPECT_EQ(log.Text(), "lit(true) other(true) lit(false)");
    EXPECT_EQ(log.Count(), 3);
    EXPECT_EQ(log.Count("lit"), 2);
    EXPECT_EQ(log.Count("li"), 0);
    EXPECT_EQ(log.Entries().back(), "lit(false)");
}

TEST_F(SignalLog, TakeGivesTheTextAndForgetsIt)
{
    CSignalLog log(m_Lamp.m_SigLit, "lit");
    m_Lamp.SetLit(true);
    EXPECT_EQ(log.Take(), "lit(true)");
    EXPECT_EQ(log.Text(), "");
    m_Lamp.SetLit(false);
    log.Clear();
    EXPECT_EQ(log.Text(), "");
}

TEST_F(SignalLog, AnotherElementAsFirstArgumentIsWritten)
{
    signal_t<CVisualElement*, int> own;
    CSignalLog log(own, "own");
    log.Name(m_Lamp, "lamp");
    own(&m_Lamp, 3);
    own(&m_Other, 4);
    own(nullptr, 5);
    EXPECT_EQ(log.Text(), "own(lamp, 3) own(CLamp, 4) own(null, 5)");
}

TEST_F(SignalLog, TheEmitterOfASignalOutsideOfItCanBeNamed)
{
    signal_t<CVisualElement*, int> own;
    CSignalLog log;
    log.Add(own, "own", static_cast<CVisualElement*>(&m_Lamp));
    own(&m_Lamp, 3);
    own(&m_Other, 4);
    EXPECT_EQ(log.Text(), "own(3) own(CLamp, 4)");
}

TEST_F(SignalLog, ASignalOfTheBaseClassHasTheSameEmitter)
{
    CSignalLog log(m_Lamp.m_SigVisible, "visible");
    log.Add(m_Lamp.m_SigSize, "size");
    m_Lamp.SetVisible(false);
    m_Lamp.m_SigSize(&m_Lamp);
    EXPECT_EQ(log.Text(), "visible(false) size()");
}

TEST_F(SignalLog, ReadsAllKindsOfArguments)
{
    CSignalLog log;

    bool allowed = true;
    bool handled = false;
    DragInfo info;
    log.Add(m_Lamp.m_SigStartDragging, "start");
    m_Lamp.m_SigStartDragging(&m_Lamp, 3, -4, &info, &allowed, &handled);
    EXPECT_EQ(log.Take(), "start(3, -4, DragInfo, true, false)");

    log.Add(m_Lamp.m_SigDrawDragItem, "item");
    m_Lamp.m_SigDrawDragItem(&m_Lamp, &m_Other, m_Host.Window().GetPainter(), nullptr, true, nullptr);
    EXPECT_EQ(log.Take(), "item(CLamp, painter, null, true, null)");

    std::string text = "a\n\"b\"";
    log.Add(m_Lamp.m_SigAsString, "string");
    m_Lamp.m_SigAsString(&m_Lamp, text);
    EXPECT_EQ(log.Take(), "string(\"a\\n\\\"b\\\"\")");

    CTooltipEvent tip;
    log.Add(m_Lamp.m_SigTooltip, "tip");
    m_Lamp.m_SigTooltip(&m_Lamp, &tip);
    EXPECT_EQ(log.Take(), "tip(CTooltipEvent)");

    bool copy = true;
    log.Add(m_Lamp.m_SigCopyToClipboard, "copy");
    m_Lamp.m_SigCopyToClipboard(&m_Lamp, copy);
    EXPECT_EQ(log.Take(), "copy(true)");

    log.Add(m_Lamp.m_SigChar, "char");
    m_Lamp.m_SigChar(&m_Lamp, 'x');
    EXPECT_EQ(log.Take(), "char('x')");

    log.Add(m_Lamp.m_SigButtonDown, "down");
    m_Lamp.m_SigButtonDown(&m_Lamp, 1, 2, 3, mbRight);
    EXPECT_EQ(log.Take(), "down(1, 2, 3, 3)");
}

TEST_F(SignalLog, SignalsWithoutArgumentsHaveEmptyBrackets)
{
    signal_t<> bare;
    CSignalLog log(bare, "bare");
    bare();
    EXPECT_EQ(log.Text(), "bare()");
}

TEST_F(SignalLog, NotesStandBetweenTheSignals)
{
    CSignalLog log(m_Lamp.m_SigLit, "lit");
    log.Note("before");
    m_Lamp.SetLit(true);
    log.Note("after");
    EXPECT_EQ(log.Text(), "before lit(true) after");
}

TEST_F(SignalLog, TheLogMayDieBeforeTheSignalAndTheSignalBeforeTheLog)
{
    auto log = std::make_unique<CSignalLog>(m_Lamp.m_SigLit, "lit");
    log.reset();
    m_Lamp.SetLit(true);

    auto signal = std::make_unique<signal_t<int>>();
    CSignalLog longer(*signal, "n");
    (*signal)(7);
    signal.reset();
    EXPECT_EQ(longer.Text(), "n(7)");
}

// Describe ---------------------------------------------------------------------------------------------------------

enum class Shade : unsigned char { Light = 3 };
class IUnknownThing;
struct SPlain
{
};

TEST(Describe, ReadsPlainValues)
{
    EXPECT_EQ(Describe(true), "true");
    EXPECT_EQ(Describe(-12), "-12");
    EXPECT_EQ(Describe(12ul), "12");
    EXPECT_EQ(Describe(2.5), "2.5");
    EXPECT_EQ(Describe(3.0), "3");
    EXPECT_EQ(Describe(-0.0), "0");
    EXPECT_EQ(Describe(1e300), "1e+300");
    EXPECT_EQ(Describe(0.1f), "0.10000000149011612");
    EXPECT_EQ(Describe('a'), "'a'");
    EXPECT_EQ(Describe('\''), "'\\''");
    EXPECT_EQ(Describe('\n'), "'\\n'");
    EXPECT_EQ(Describe('\xC3'), "'\\xC3'");
    EXPECT_EQ(Describe(Shade::Light), "3");
    EXPECT_EQ(Describe("text"), "\"text\"");
    EXPECT_EQ(Describe(std::string("\x01\t\\")), "\"\\x01\\t\\\\\"");
}

TEST(Describe, ReadsGeometryColoursAndSequences)
{
    EXPECT_EQ(Describe(point<int>{1, -2}), "(1, -2)");
    EXPECT_EQ(Describe(size<double>{1.5, 2}), "(1.5, 2)");
    EXPECT_EQ(Describe(range<int>{-1, -1}), "(-1, -1)");
    EXPECT_EQ(Describe(rectangle<int>{1, 2, 3, 4}), "(1, 2, 3, 4)");
    EXPECT_EQ(Describe(screen_rectangle<int>{1, 2, 3, 4}), "(1, 2, 3, 4)");
    EXPECT_EQ(Describe(color_table[3]), "yellow");
    EXPECT_EQ(Describe(_color(0x80123456)), "#563412/80");
    EXPECT_EQ(Describe(std::vector<int>{1, 2}), "[1, 2]");
    EXPECT_EQ(Describe(std::vector<bool>{}), "[]");
    EXPECT_EQ(Describe(pen{}), "black");
    EXPECT_EQ(Describe(brush{}), "white");
}

TEST(Describe, ReadsPointersByWhatTheyPointAt)
{
    int const number = 7;
    bool const flag = false;
    std::string const text = "t";
    SPlain plain;
    EXPECT_EQ(Describe(&number), "7");
    EXPECT_EQ(Describe(&flag), "false");
    EXPECT_EQ(Describe(&text), "\"t\"");
    EXPECT_EQ(Describe(&plain), "SPlain");
    EXPECT_EQ(Describe(plain), "SPlain");
    EXPECT_EQ(Describe(static_cast<int*>(nullptr)), "null");
    EXPECT_EQ(Describe(nullptr), "null");
    EXPECT_EQ(Describe(reinterpret_cast<IUnknownThing*>(&plain)), "IUnknownThing");
    EXPECT_EQ(Describe(static_cast<void*>(&plain)), "pointer");
    char const* none = nullptr;
    EXPECT_EQ(Describe(none), "null");
}

TEST(Describe, ObjectsHaveTheNameOfTheirOwnClass)
{
    CMouseEvent const event;
    CEvent const* base = &event;
    EXPECT_EQ(Describe(base), "CMouseEvent");
    EXPECT_EQ(Describe(*base), "CMouseEvent");
    CLamp lamp(nullptr, {1, 1}, alNone);
    CVisualElement* element = &lamp;
    EXPECT_EQ(Describe(element), "CLamp");
    NameElement(lamp, "the lamp");
    EXPECT_EQ(Describe(element), "the lamp");
    EXPECT_EQ(Describe(&lamp), "the lamp");
}

TEST(Describe, NamesOfTypesHaveNoNamespaces)
{
    struct SLocal
    {
    };
    EXPECT_EQ(TypeName(typeid(CLamp)), "CLamp");
    EXPECT_EQ(TypeName(typeid(SPlain)), "SPlain");
    EXPECT_EQ(TypeName(typeid(SLocal)), "SLocal");
    EXPECT_EQ(TypeName(typeid(std::vector<CLamp*>)), "vector<CLamp*, allocator<CLamp*> >");
    EXPECT_EQ(StripNamespaces("vexel::A<vexel::B, x::C<y::D>>::E"), "E");
    EXPECT_EQ(StripNamespaces("vexel::CTransparentFlavor<vexel::CVisualElement>"), "CTransparentFlavor<CVisualElement>");
    EXPECT_EQ(StripNamespaces("(anonymous namespace)::CProbe"), "CProbe");
    EXPECT_EQ(StripNamespaces("a::T_X_Test::TestBody()::CProbe"), "CProbe");
    EXPECT_EQ(StripNamespaces("a::f(b::C)::{lambda(d::E)#1}"), "{lambda(E)#1}");
    EXPECT_EQ(StripNamespaces("a::f(int) const::CProbe"), "CProbe");
}

} // namespace
} // namespace vexel
