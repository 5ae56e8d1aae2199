#pragma once

#include "field.h"
#include "values.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/controls/radio_button.h"

#include <memory>
#include <string>
#include <vector>

namespace settings
{

/// An area in its background colour.
class CGround : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

protected:
    void DrawContent(IPainter* painter) override;
};

/// The choices of a setting, as a list shows them.
class CChoices : public IItemsModel
{
public:
    explicit CChoices(std::vector<std::string> const& texts) : m_Texts(texts) {}

    int GetItemCount() const override { return static_cast<int>(m_Texts.size()); }
    std::string GetItemCaption(int index) const override { return m_Texts.at(static_cast<std::size_t>(index)); }

private:
    std::vector<std::string> const m_Texts;
};

/// The settings of one tab, a row each.
class CPage : public CGround
{
public:
    /// `values` must outlive the page.
    CPage(CVisualElement* parent, ISysWindow& window, CValues& values, std::string const& category,
          std::string const& tab);
    ~CPage() override;

    signal_t<std::string const&> m_SigTold;  ///< A setting was changed, or why it was not.

private:
    // A row: what changes its value, and the setting.
    class CRow;

    std::vector<std::unique_ptr<CRow>> m_Rows;
};

}  // namespace settings
