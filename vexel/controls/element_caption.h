#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/controls/caption.h"
#include "vexel/controls/help_button.h"
#include "vexel/core/transparent_flavor.h"

namespace vexel
{

class CButton;

/// The title strip of a pane: a text and, if the strip has a help topic, a small help button. It looks active or not by
/// its colours alone, so an application that colours it changes what IsActive answers.
class VEXEL_API CElementCaption : public CTransparentFlavor<CBevel>
{
public:
    CElementCaption(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    CCaption& GetText() { return m_Text; }
    CCaption const& GetText() const { return m_Text; }
    CHelpButton& GetHelpButton() { return m_HelpButton; }

    bool IsActive() const;  ///< It has the highlight colour.
    void Layout();          ///< The text turns with the edge the strip is docked to.
    void OnHelpButtonClick(CButton* button);

public:  // From CVisualElement
    void SetAlignment(Alignment alignment) override;
    void SetHelpId(std::string const& id) override;  ///< With a topic the help button shows.
    void AfterSetControl() override;
    void AttributeChanged() override;  ///< The height follows the font.

public:  // From CBevel
    void DrawBackground(IPainter* painter) override;

public:  // Overridable
    /// Colours the strip and its children.
    virtual void SetActive(bool active);

private:
    void SetColors(CVisualElement& element, bool active, bool overImage);

    CHelpButton m_HelpButton;
    CCaption m_Text;
};

}  // namespace vexel
