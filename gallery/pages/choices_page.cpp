#include "gallery/pages/choices_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/check_box.h"

namespace gallery
{

namespace
{

// A disc that is full when the mark is set, with a rim that lights up; one image for each state.
char const* g_Off[] = {"16 16 3 1",        "  c None",         ". c #7F7F7F",      "o c #F4F4F4",
                       "                ", "     ......     ", "   ..oooooo..   ", "  .oooooooooo.  ",
                       "  .oooooooooo.  ", " .oooooooooooo. ", " .oooooooooooo. ", " .oooooooooooo. ",
                       " .oooooooooooo. ", " .oooooooooooo. ", " .oooooooooooo. ", "  .oooooooooo.  ",
                       "  .oooooooooo.  ", "   ..oooooo..   ", "     ......     ", "                "};
char const* g_On[] = {"16 16 3 1",        "  c None",         ". c #2E6B34",      "o c #57B560",
                      "                ", "     ......     ", "   ..oooooo..   ", "  .oooooooooo.  ",
                      "  .oooooooooo.  ", " .oooooooooooo. ", " .oooooooooooo. ", " .oooooooooooo. ",
                      " .oooooooooooo. ", " .oooooooooooo. ", " .oooooooooooo. ", "  .oooooooooo.  ",
                      "  .oooooooooo.  ", "   ..oooooo..   ", "     ......     ", "                "};

// The page's answer to a custom check box that asks for an image.
class CLamp : public CCustomCheckBox
{
public:
    CLamp(CVisualElement* parent, std::string const& text) : CCustomCheckBox(parent, {0, 0}, alNone)
    {
        m_NeedImage.connect(this, &CLamp::GiveImage);
        SetCaption(text);
    }

private:
    void GiveImage(CCustomCheckBox*, int key, CImageHolder& image)
    {
        image = CImageHolder(XPMImage(XPMBuf((key & s_CheckedBit) != 0 ? g_On : g_Off, true)));
    }
};

template <class Box>
Box* Add(CVisualElement* parent, std::string const& text, bool checked = false, bool enabled = true)
{
    auto* const box = new Box(parent, {0, 0}, alNone);
    box->SetCaption(text);
    box->SetChecked(checked);
    box->SetEnabled(enabled);
    return box;
}

}  // namespace

void CChoicesPage::Build(CVisualElement* parent)
{
    new CLabel(parent, {0, 28}, alTop, "Check boxes");
    auto* const boxes = new CGrid(parent, {0, 108}, alTop, {170, 26}, 8);
    Report(Add<CCheckBox>(boxes, "Wrap long lines")->m_CheckChanged, "wrap.changed");
    Report(Add<CCheckBox>(boxes, "Show line numbers", true)->m_CheckChanged, "numbers.changed");
    Add<CCheckBox>(boxes, "Disabled", false, false);
    Add<CCheckBox>(boxes, "Disabled, checked", true, false);
    auto* const link = Add<CCheckBox>(boxes, "I agree to the <a href=\"terms\">terms</a>");
    link->UseHTML(true);
    Report(link->m_CheckChanged, "agree.changed");
    Report(link->m_LinkClicked, "link");
    auto* const coloured = Add<CCheckBox>(boxes, "On a ground of its own", true);
    coloured->SetBkColor(color_table[26]);
    coloured->SetFgColor(color_table[1]);
    Report(Add<CCheckBox>(boxes, "")->m_CheckChanged, "without a caption.changed");
    Add<CCheckBox>(boxes, "A caption that is longer than its place");

    new CLabel(parent, {0, 28}, alTop, "Images of the application's own");
    auto* const lamps = new CGrid(parent, {0, 42}, alTop, {170, 26}, 8);
    Report((new CLamp(lamps, "Pump 1"))->m_CheckChanged, "pump 1.changed");
    auto* const second = new CLamp(lamps, "Pump 2");
    second->SetChecked(true);
    Report(second->m_CheckChanged, "pump 2.changed");
    auto* const idle = new CLamp(lamps, "Out of order");
    idle->SetChecked(true);
    idle->SetEnabled(false);

    new CLabel(parent, {0, 28}, alTop, "Two groups, one of each is on");
    auto* const seasons = new CGrid(parent, {0, 42}, alTop, {120, 26}, 8);
    for (char const* name : {"Spring", "Summer", "Autumn", "Winter"})
        m_Seasons.Add(Add<CRadioButton>(seasons, name));
    m_Seasons.SetCurrent(1);
    Report(m_Seasons.m_CurrentChanged, "season");
    auto* const sizes = new CGrid(parent, {0, 42}, alTop, {120, 26}, 8);
    for (char const* name : {"Small", "Medium", "Large"})
        m_Sizes.Add(Add<CRadioButton>(sizes, name));
    m_Sizes.GetButton(2)->SetEnabled(false);
    Report(m_Sizes.m_CurrentChanged, "size");
    new CPanel(parent, {0, 0}, alClient);
}

}  // namespace gallery
