// Tab among elements and native controls that stand in one tree.

#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/layout/container.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// first, a container with an edit, last: in this order in the tree.
class TabInTree : public testing::Test
{
protected:
    TabInTree()
    {
        m_First->SetCanHaveFocus(true);
        m_Last->SetCanHaveFocus(true);
        m_Container->SetCanHaveFocus(true);
        m_Container->SetNativeControl(m_Edit.get());
        m_Host.Paint();
        m_Host.Focus();
        m_First->SetFocus(true);
    }

    CVisualElement* Focused() { return m_Host.Control().GetControl()->GetFocusedElement(); }
    bool EditHasFocus()
    {
        return CTestHost::System().GetFocusNode() == m_Host.Native<vexelbase::memory::CMemoryEdit>();
    }
    bool WindowHasFocus() { return CTestHost::System().GetFocusNode() == &m_Host.Window(); }

    CTestHost m_Host{200, 40};
    CVisualElement* m_First = new CVisualElement(m_Host.Root(), {40, 0}, alLeft);
    CContainer* m_Container = new CContainer(m_Host.Root(), {60, 0}, alLeft);
    CVisualElement* m_Last = new CVisualElement(m_Host.Root(), {40, 0}, alLeft);
    vexel_ptr<IEdit> m_Edit = m_Host.Window().CreateEdit(false);
};

TEST_F(TabInTree, GoesThroughANativeControlInTheOrderOfTheTree)
{
    m_Host.Keyboard().Tab();
    EXPECT_EQ(Focused(), m_Container);
    EXPECT_TRUE(EditHasFocus());

    m_Host.Keyboard().Tab();
    EXPECT_EQ(Focused(), m_Last);
    EXPECT_TRUE(WindowHasFocus());
}

TEST_F(TabInTree, GoesBackThroughItLikewise)
{
    m_Last->SetFocus(true);

    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(Focused(), m_Container);
    EXPECT_TRUE(EditHasFocus());

    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(Focused(), m_First);
    EXPECT_TRUE(WindowHasFocus());
}

TEST_F(TabInTree, KeysGoWhereTheWalkHasCome)
{
    m_Host.Keyboard().Tab();
    m_Host.Keyboard().Type("in");
    m_Host.Keyboard().Tab();
    m_Host.Keyboard().Type("not");

    EXPECT_EQ(m_Edit->GetText(), "in");
}

TEST_F(TabInTree, AContainerThatTakesNoFocusIsReachedInTheNativeOrder)
{
    m_Container->SetCanHaveFocus(false);
    m_Container->UpdateControlPos();
    m_Host.Keyboard().Tab();
    EXPECT_EQ(Focused(), m_Last) << "the tree passes it by";

    m_Host.Keyboard().Tab();
    EXPECT_TRUE(EditHasFocus()) << "behind the window";
}

TEST_F(TabInTree, TheElementMayBeDeletedByTheFocusThatComes)
{
    struct CDeletes : subscriber_base_t
    {
        void Slot(CVisualElement* element) { delete element; }
    } deletes;
    m_Last->m_SigGetFocus.connect(&deletes, &CDeletes::Slot);
    m_Host.Keyboard().Tab();

    m_Host.Keyboard().Tab();

    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 2);
    EXPECT_EQ(Focused(), m_First) << "the window has the native focus and gives it to the first that takes it";
}

}  // namespace
