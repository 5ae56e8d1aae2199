#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/core/element_ptr.h"
#include "vexel/tasks/gui_task.h"

#include <atomic>

namespace vexel
{

class CExpanderLogic;

/// A frame with a title and a body that can be shown and hidden, at once or in steps, in which the frame grows or shrinks.
/// It asks for as much room as title and body do, also when these change what they ask for; in the other direction it keeps
/// the size that it was given. All belongs to the GUI thread; a thread of its own waits between the steps, and none runs
/// when nothing moves.
class VEXEL_API CExpander : public CBevel,
                            public CGUITask  // the steps
{
public:
    enum ExpandDirection : int
    {
        ExpandTopBottom = 0,  ///< The title at the top, the body opens downwards. So does any other value.
        ExpandBottomTop = 1,
        ExpandLeftRight = 2,
        ExpandRightLeft = 3
    };

    CExpander(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CExpander() override;

    // Parts: they become children. The former one is detached and belongs to the caller again. Null: none. One that is taken
    // to another parent is a part no more --------------------------------------------------------------------------------
    CVisualElement* GetTitle() const { return GetPart(m_Title); }
    void SetTitle(CVisualElement* title);  ///< Docks it to the side of the direction.
    CVisualElement* GetBody() const { return GetPart(m_Body); }
    void SetBody(CVisualElement* body);  ///< It fills what the title leaves.
    ExpandDirection GetExpandDirection() const { return m_Direction; }
    void SetExpandDirection(ExpandDirection direction);  ///< On a change the title is detached, to be set again.

    // State ------------------------------------------------------------------------------------------------------------------
    /// `animated`: in steps of a quarter of the body, every 10 milliseconds; in a tree without a window they wait for one.
    /// A body of less than 4 pixels never gets on. Otherwise at once, and steps under way end.
    void Expand(bool expand, bool animated);
    bool IsExpanded() const;                         ///< The state that it is in, or moves to.
    bool IsSizing() const { return m_Sizing != 0; }  ///< Steps are under way.
    void UpdateSize();                               ///< A step, if steps are under way.
    void StopSizing();                               ///< Ends the steps; the size stays as it is.

public:                                 // Overridable
    virtual void HandleExpand(bool) {}  ///< After each Expand, at the beginning of an animation.

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void ProcessSetControl(IControl* control) override;
    void AfterSetControl() override;
    void ProcessRearrange(CVisualElement** element) override;
    void HandleControlDestroy() override;

protected:  // From CGUITask
    bool InternalProcessData() override;
    void InitUpdater(CRunnableProxy* proxy) override;

private:
    enum Sizing : int
    {
        SizingNone = 0,
        SizingOpens = 1,
        SizingCloses = 2
    };

    CVisualElement* GetPart(CElementPtr<> const& part) const
    {
        return part && part->GetParent() == this ? part.get() : nullptr;
    }
    CExpanderLogic& GetLogic() const;
    void DetachPart(CElementPtr<>& part);
    void AdoptSize();
    void StartTask();
    void StopTask();

    ExpandDirection m_Direction = ExpandTopBottom;
    CElementPtr<> m_Title;
    CElementPtr<> m_Body;
    std::atomic<int> m_Sizing{SizingNone};  // read by the thread that waits
    vexel_ptr<IRunner> m_OwnRunner;         // while the task has it
};

}  // namespace vexel
