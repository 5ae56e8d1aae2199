#pragma once

#include "vexel/core/element_ptr.h"
#include "vexel/views/event_handler.h"

namespace vexel
{

/// Keeps an editor, a child of the viewer, on its cell while the viewer scrolls. What sticks out of the view is cut off;
/// once less than 18 unscaled pixels are left in a direction the editor goes away until enough of it is back in view.
/// Rectangles: the viewer's pixels.
class VEXEL_API CEditorEventHandler : public CEventHandler
{
public:
    class VEXEL_API INotify
    {
    public:
        virtual ~INotify();
        virtual void EditorHidden() = 0;  ///< The editor was scrolled away. May delete the handler.
    };

    explicit CEditorEventHandler(INotify* notify) : m_Notify(notify) {}  ///< Not owned; null: nobody hears.

    CVisualElement* GetEditor() const { return m_Editor.get(); }
    void SetEditor(CVisualElement* editor);  ///< Not owned; one that dies is forgotten. Null: none.
    void UpdateEditor();                     ///< Takes place and visibility of the editor as they are now.
    /// Where it would stand if nothing were cut off.
    rectangle<int> const& GetEditorPos() const { return m_EditorPos; }

public:  // From CEventHandler
    void ProcessResize(rectangle<int> const& old, rectangle<int> const& now, bool invalidate) override;
    void ProcessScroll(int dx, int dy) override;

private:
    rectangle<int> GetVisiblePart() const;
    void Hide();

    INotify* m_Notify;
    CElementPtr<CVisualElement> m_Editor;
    rectangle<int> m_ViewRect;  // all zero: not told yet
    rectangle<int> m_EditorPos;
    bool m_EditorVisible = false;
};

}  // namespace vexel
