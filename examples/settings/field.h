#pragma once

#include "vexel/controls/combo_box.h"
#include "vexel/platform/painter.h"
#include "vexel/signals/signal.h"

#include <string>

namespace settings
{

using namespace vexel;

/// A text in a frame that is edited in place: by a press, and until return, escape, or the focus goes elsewhere.
/// `Editor`: CLineEditor or CComboBox.
template <class Editor> class CField : public Editor
{
public:
    explicit CField(CVisualElement* parent)
    {
        this->ReParent(parent, false);
        this->SetAlignment(alLeft);
        this->SetSize({240, 0}, true);
        this->SetBkColor(ISysPalette::scWindow);
        this->SetFgColor(ISysPalette::scWindowText);
        this->GetEditContainer().SetCanHaveFocus(true);
        this->GetEditContainer().m_SigLostFocus.connect(this, &CField::LeaveEdit);
        this->m_SigEditStarted.connect(this, &CField::StartEdit);
        this->m_SigEditFinished.connect(this, &CField::FinishEdit);
    }

    signal_t<CField*> m_SigTextChanged;  ///< By an edit that was accepted.

    std::string const& GetText() const { return m_Text; }
    void SetText(std::string const& text)
    {
        m_Text = text;
        this->Update(utElement);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = this->GetBounds();
        rectangle<double> rect{0, 0, static_cast<double>(bounds.right), static_cast<double>(bounds.bottom)};
        painter->SetPen({this->IsEnabled() ? color_table[8] : color_table[23], pen::psSolid, 1});
        painter->Rectangle(rect.left, rect.top, rect.right, rect.bottom);
        this->GetEditorRect(rect);
        painter->DrawString({rect.left + 6, rect.top, rect.right - 4, rect.bottom}, m_Text,
                            IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
    }
    std::string HandleAsString() const override { return m_Text; }

private:
    virtual void GiveText(std::string const& text) = 0;

    void StartEdit(CBaseEditor*)
    {
        m_Editing = true;
        GiveText(m_Text);
    }
    void FinishEdit(CBaseEditor*, bool accepted)
    {
        m_Editing = false;
        ICustomControl const* const native = this->GetEditContainer().GetNativeControl();
        std::string const text = accepted && native ? native->GetText() : m_Text;
        this->Update(utElement);
        if (text == m_Text)
            return;
        m_Text = text;
        m_SigTextChanged(this);
    }
    void LeaveEdit(CVisualElement*)
    {
        if (m_Editing)
            this->ProcessEditorCommand(CBaseEditor::ecAccept);
    }

    std::string m_Text;
    bool m_Editing = false;
};

class CLineField : public CField<CLineEditor>
{
public:
    using CField<CLineEditor>::CField;

private:
    void GiveText(std::string const& text) override
    {
        if (IEdit* const edit = GetEdit())
        {
            edit->SetText(text);
            edit->SelectAll();
        }
    }
};

class CBoxField : public CField<CComboBox>
{
public:
    using CField<CComboBox>::CField;

private:
    void GiveText(std::string const& text) override
    {
        IComboBox* const box = GetComboBox();
        if (!box)
            return;
        box->SetText(text);
        for (int i = 0; i < box->GetItemCount(); ++i)
            if (box->GetItemText(i) == text)
                box->SetCurrentItem(i);
    }
};

}  // namespace settings
