#pragma once

#include "tests/support/game.h"
#include "vexel/core/base_control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/base_window.h"
#include "vexel/testing/random.h"

#include <string>
#include <vector>

namespace vexel::test
{

/// Grows a random tree in a control and changes it at random, as an application and its user would, on whatever backend
/// the window is. What an application must ask for itself, it asks for: an element of alNone that moves, shows or hides
/// repaints its parent, and so does one that goes away by delete.
class CTreeGame
{
public:
    CTreeGame(CBaseControl& control, vexelbase::CBaseWindow& window, CTestRandom& random);
    ~CTreeGame();

    /// One change or event.
    void Step();
    /// A native frame with what waits.
    void Paint();
    /// Paints everything anew over a copy of the surface; an empty text if not a pixel differs, otherwise where and what,
    /// with the tree and the last steps.
    std::string CompareWithFullPaint();

    int GetSteps() const { return m_Steps; }

private:
    class CNode;
    class CFill;
    class CGlass;
    class CStrips;
    class CBare;

    CNode* Pick();  // any element but the root, null if there is none
    CVisualElement* PickParent();
    void Add();
    void Remove();
    void Move();
    void Change();
    void UserEvent();
    void ResizeWindow();
    void Collect(CVisualElement* element);
    void PlaceByParent(CNode* node);
    static bool IsStrips(CNode const* node);
    static bool IsFree(CNode const* node);
    CVisualElement* FindMisplaced(CVisualElement* element);
    std::string DescribeTree(CVisualElement* element, int depth) const;
    std::string NameOf(CVisualElement const* element) const;

    CBaseControl& m_Control;
    vexelbase::CBaseWindow& m_Window;
    CTestRandom& m_Random;
    CVisualElement* m_Bare = nullptr;
    CVisualElement* m_Base = nullptr;
    std::vector<CNode*> m_All;
    CGameLog m_Log{24};
    vexelbase::point<int> m_Pointer;
    int m_Held = 0;
    int m_Steps = 0;
    unsigned long m_NextId = 1;
};

}  // namespace vexel::test
