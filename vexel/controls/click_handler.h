#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/export.h"
#include "vexel/platform/events.h"

namespace vexel
{

using namespace vexelbase;

/// The state machine of everything that is pressed and released: three stages, four events, and a table of what leads
/// where. A press that leaves is not resumed: coming back is hot, and the release there no click.
/// ProcessClick and ProcessStageChange may delete the object; then the event under way ends by cancel_processing.
class VEXEL_API CClickHandler
{
public:
    enum ClickStage : int
    {
        StageNormal = 0,  ///< The pointer is outside.
        StageHot = 1,     ///< The pointer is over the button.
        StagePressed = 2
    };
    enum ClickEvent : int
    {
        EventMouseEnter = 0,
        EventMouseLeave = 1,
        EventDown = 2,  ///< Left button or space.
        EventUp = 3
    };

    /// Rows of stage, event, new stage. They are walked from first to last, and the walk goes on with the new stage.
    static int const s_Transitions[5][3];

    CClickHandler() = default;
    CClickHandler(CClickHandler const&) = delete;
    CClickHandler& operator=(CClickHandler const&) = delete;

    ClickStage GetClickStage() const { return m_Stage; }
    /// A release while pressed is a click, which comes before the stage changes.
    void ProcessEvent(ClickEvent event);

    bool HandleButtonDown(int keys, MouseButton button);  ///< Whether it was the left button, which alone counts.
    bool HandleButtonUp(int keys, MouseButton button);
    /// Space presses, wherever the pointer is, again each time it repeats; return clicks at once. True for these two.
    bool HandleKeyDown(int keys, int key);
    bool HandleKeyUp(int keys, int key);  ///< Space releases; true for it alone.
    void HandleMouseHover() { ProcessEvent(EventMouseEnter); }
    void HandleMouseLeave() { ProcessEvent(EventMouseLeave); }

    virtual void ProcessClick() = 0;
    virtual void ProcessStageChange(ClickStage stage) = 0;  ///< After the change.

protected:
    ~CClickHandler() { CAliveLink::Forget(this); }

    void ResetClickStage() { m_Stage = StageNormal; }  ///< Tells nobody.

private:
    ClickStage m_Stage = StageNormal;
};

}  // namespace vexel
