#include "gallery/pages/messages_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"
#include "vexel/widgets/titled_gauge_box.h"

namespace gallery
{

using workbench::CMessageSetUp;

CMessageBox* CMessagesPage::AddBox(CVisualElement* parent, std::string const& name, int image, char const* title,
                                   char const* text)
{
    auto* const box = new CMessageBox(parent, {0, 10}, alTop);
    box->SetBottomPadSize(ToDevicePixels(6));
    box->SetBkColor(ISysPalette::scWindow);
    box->SetImageType(image);
    box->GetTitle().SetCaption(title);
    box->GetText().SetCaption(text);
    Report(box->m_ButtonPressed, name);
    new CPanel(parent, {0, 10}, alTop);
    return box;
}

void CMessagesPage::Build(CVisualElement* parent)
{
    m_Question = AddBox(parent, "question", CMessageSetUp::ImageWarning, "The file has changed on disk",
                        "Another program has written it. Read it again, or go on with what is here?");
    m_Question->GetButtons().SetButtons(CMessageSetUp::ButtonRetry | CMessageSetUp::ButtonGoOn |
                                        CMessageSetUp::ButtonQuit);
    m_Question->m_ButtonPressed.connect(this, &CMessagesPage::Answered);
    AddBox(
        parent, "long", CMessageSetUp::ImageInfo, "A text that wraps",
        "The height of this text follows the width of the box: make the window narrower and it takes more lines, and "
        "the box grows with it. Title and picture stay level, and the text begins below both of them.")
        ->GetText()
        .AdjustHeight(true);
    AddBox(parent, "error", CMessageSetUp::ImageError, "No buttons", "A box without them is a notice.");
    AddBox(parent, "plain", 0, "No picture", "Then title and text stand at the left.")
        ->GetButtons()
        .SetButtons(CMessageSetUp::ButtonOk | 64);

    m_Progress = new CTitledGaugeBox(parent, {0, 10}, alTop);
    m_Progress->SetBkColor(ISysPalette::scWindow);
    m_Progress->SetBottomPadSize(ToDevicePixels(6));
    m_Progress->GetImage().SetRasterPicture(CMessageBox::GetPicture(CMessageSetUp::ImageInfo));
    m_Progress->GetTitle().SetCaption("Copying");
    CGaugeBoxEx& box = m_Progress->GetContent();
    box.GetGauge().SetMax(100);
    box.GetGauge().Increase(60);
    box.GetButton().SetCaption("Cancel");
    box.GetText().SetCaption("36 of 60 files");
    Report(box.GetButton().m_Clicked, "cancel");
    box.GetButton().m_Clicked.connect(this, &CMessagesPage::Cancel);
    new CPanel(parent, {0, 0}, alClient);
}

void CMessagesPage::Answered(CMessageBox* box, int button)
{
    if (button == CMessageSetUp::ButtonQuit)
        return box->SetVisible(false);
    box->KeepTextWidth();
    box->SetImageType(CMessageSetUp::ImageInfo);
    box->GetTitle().SetCaption(button == CMessageSetUp::ButtonRetry ? "Read again" : "Kept as it is");
    box->GetText().SetCaption("The box keeps its width and asks no more.");
    box->SetButtonsVisible(false);
}

void CMessagesPage::Cancel(CButton*)
{
    m_Progress->GetContent().GetGauge().Reset();
    m_Progress->GetContent().GetText().SetCaption("Cancelled");
}

}  // namespace gallery
