#pragma once

#include "vexel/views/event_handler.h"

namespace vexel
{

/// Takes the mouse of a viewer whose items light up under the pointer: moves without a button highlight, a press of the
/// left button chooses. What stands behind it in the chain hears of no press, and of no move while the left button is
/// held. Keys are the subclass's.
class VEXEL_API CHighlightingHandler : public CEventHandler
{
public:  // From CEventHandler
    bool ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override;
    bool ProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override;
    void ProcessMouseLeave(bool* handled) override { HighlightingMouseLeave(handled); }

public:  // Overridable
    /// The left button is held. True: consumed.
    virtual bool SetCurProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) = 0;
    virtual bool HighlightingMouseMove(int x, int y, int keys, MouseButton button, bool* handled) = 0;
    virtual void HighlightingMouseLeave(bool* handled) = 0;
    virtual bool SetCurProcessKeyDown(int key) = 0;  ///< True: consumed.
};

/// The handler of a pane of tabs: all keys end here.
class VEXEL_API CDefTabHandler : public CHighlightingHandler
{
public:  // From CEventHandler
    bool ProcessKeyDown(int keys, int key, bool* handled) override;
};

}  // namespace vexel
