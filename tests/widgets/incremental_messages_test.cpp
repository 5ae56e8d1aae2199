// Message boxes in panes, changed, pressed, docked and deleted at random: what is painted bit by bit looks as if painted at
// once, and the title keeps level with the picture.

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/widgets/message_bench.h"
#include "vexel/controls/bevel.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/random.h"
#include "vexel/widgets/check_stage_gui.h"
#include "vexel/widgets/titled_gauge_box.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CMessagesGame
{
public:
    CMessagesGame(CTestRandom& random, double scale) : m_Random(random), m_Host(700, 700, scale)
    {
        for (int type = 0; type < 5; ++type)
            NewPicture(type);
        for (int bit = 1; bit <= 64; bit *= 2)
            if (m_Random.Chance(70))
                CMessageBox::SetButtonCaption(bit, m_Random.Bool() ? "Yes" : "Certainly");
        for (int i = 0; i < 2; ++i)
        {
            CVisualElement* const pane =
                new CBevel(m_Host.Root(), {m_Random.Int(300, 400), 0}, i == 0 ? alLeft : alClient);
            pane->SetBkColor(color_table[m_Random.Int(1, 20)]);
            pane->SetCanHaveFocus(m_Random.Bool());
            m_Panes.push_back(pane);
        }
        m_Gauge = new CTitledGaugeBox(m_Panes[0], {0, 0}, alBottom);
        m_Gauge->GetContent().GetGauge().SetMax(20);
        AddBox();
        for (CVisualElement* const pane : m_Panes)
            new CLeaf(pane, {0, 0}, alClient, m_Random.Int(0, 17));
        m_Stage.SetParent(m_Panes[1]);
        m_Stage.SetTimer(CTestHost::System().CreateTimer(50, 0));
        m_Fails = Listen(m_Stage.m_Check, [this](bool& failed) { failed = m_Random.Chance(70); });
        m_Host.Focus();
        m_Host.Paint();
    }

    void Step()
    {
        int const deed = m_Random.Int(0, 19);
        if (deed < 9 && !m_Boxes.empty())
            Change(*m_Random.Pick(m_Boxes));
        else if (deed < 12)
            Press();
        else if (deed == 12)
            AddBox();
        else if (deed == 13 && !m_Boxes.empty())
            Drop(m_Random.Pick(m_Boxes));
        else if (deed == 14)
            NewPicture(m_Random.Int(0, 4));
        else if (deed < 17)
            UseGauge();
        else if (deed == 17)
            RunStage();
        else
            PassTime();
    }
    // Boxes that find no room, or that are lower than their picture, are hidden, as an owner would have to.
    void Paint()
    {
        for (m_Host.Paint(); CVisualElement* const found = FindCrampedBox(); m_Host.Paint())
        {
            m_Log.Note("hidden", found);
            found->SetVisible(false);
        }
    }
    std::string Compare() { return m_Host.CompareWithFullPaint(); }
    std::string Tell() { return m_Log.Text() + DescribeTree(m_Host.Root()); }
    // Each box whose picture leaves room for it has its title's middle at that of its picture, but for odd pixels.
    void ExpectLevel()
    {
        for (CMessageBox* const box : m_Boxes)
        {
            if (!box->GetControl() || !box->GetImage().IsAssigned() || box->GetTitle().GetCaption().empty())
                continue;
            if (box->GetTopSpacer().GetSize().height == 0)
                continue;
            int const title = box->GetTopSpacer().GetSize().height + box->GetTitle().GetSize().height / 2;
            int const image = box->GetImage().GetOffset().top + box->GetImage().GetImageSize().height / 2;
            ASSERT_EQ(title, image) << Tell();
            ++m_Levelled;
        }
    }

    int m_Presses = 0;
    int m_Levelled = 0;
    int m_StageBoxes = 0;

private:
    CVisualElement* FindCrampedBox()
    {
        return FindShown(m_Host.Root(), [](CVisualElement* element) {
            auto* const box = dynamic_cast<CMessageBoxBase*>(element);
            if (!box)
                return false;
            int const foot = box->GetImage().GetOffset().top + box->GetImage().GetImageSize().height;
            return SticksOut(box) || box->GetPos().Height() < box->GetSize().height || FindShown(box, &SticksOut) ||
                   box->GetBounds().bottom < foot;
        });
    }
    void NewPicture(int type)
    {
        vexel_ptr<IRasterPicture> const picture =
            CSharedLooks::NewPicture(type, {m_Random.Int(1, 50), m_Random.Int(1, 50)});
        picture->GetPixels().Resize(picture->GetSize(), CPixelBuffer::ToPixel(color_table[m_Random.Int(1, 20)]));
    }
    void AddBox()
    {
        if (m_Boxes.size() > 3)
            return;
        auto* const box = new CMessageBox(m_Random.Bool() ? nullptr : m_Random.Pick(m_Panes), {10, 10},
                                          m_Random.Bool() ? alTop : alBottom);
        box->SetBkColor(color_table[m_Random.Int(1, 20)]);
        box->GetText().AdjustHeight(m_Random.Bool());
        for (int i = 0; i < 4; ++i)
            Change(*box);
        if (!box->GetParent())
            box->ReParent(m_Random.Pick(m_Panes), true);
        m_Log.Note("new", box);
        m_Boxes.push_back(box);
        m_Deaths.push_back(Listen(box->m_SigDestroy, [this](CVisualElement* dead) { std::erase(m_Boxes, dead); }));
        m_Ears.push_back(
            Listen(box->m_ButtonPressed, [this](CMessageBox* pressed, int bit) { Pressed(*pressed, bit); }));
    }
    void Drop(CMessageBox* box)
    {
        if (m_Random.Bool())
        {
            m_Log.Note("move", box);
            box->ReParent(m_Random.Pick(m_Panes), true);
            return;
        }
        m_Log.Note("delete", box);
        box->ReParent(nullptr, true);  // so that its room is given away
        delete box;
    }
    void Pressed(CMessageBox& box, int bit)
    {
        ++m_Presses;
        m_Log.Note("pressed " + std::to_string(bit));
        switch (m_Random.Int(0, 4))
        {
        case 0:
            box.SetVisible(false);
            break;
        case 1:
            Drop(&box);
            break;
        case 2:
            box.KeepTextWidth();
            box.SetButtonsVisible(false);
            box.GetText().SetCaption("This takes a while");
            break;
        default:
            break;
        }
    }
    std::string Words()
    {
        static char const* const words[] = {"",    "Disk", "a\nb", "About 200 MB", "one two three four five six seven",
                                            "gone"};
        return m_Random.Pick(words);
    }
    void Change(CMessageBox& box)
    {
        m_Log.Note("change", &box);
        switch (m_Random.Int(0, 11))
        {
        case 0:
        case 1:
            box.GetTitle().SetCaption(Words());
            break;
        case 2:
        case 3:
            box.GetText().SetCaption(Words());
            break;
        case 4:
        case 5:
            box.SetImageType(m_Random.Int(0, 5));
            break;
        case 6:
            if (box.GetButtons().GetButtonCount() < 3)
                box.GetButtons().SetButtons(1u << m_Random.Int(0, 7));
            break;
        case 7:
            box.GetButtons().ClearButtons();
            box.GetButtons().SetButtons(static_cast<unsigned>(m_Random.Int(0, 3)));
            break;
        case 8:
            if (box.GetButtons().GetButtonCount() > 0)
                box.SetButtonsVisible(m_Random.Chance(70));
            break;
        case 9:
            box.SetVisible(m_Random.Chance(80));
            break;
        case 10:
            box.GetText().AdjustHeight(m_Random.Bool());
            break;
        default:
            box.KeepTextWidth();
            break;
        }
    }
    void Press()
    {
        std::vector<CButton*> buttons;
        Find(m_Host.Root(), buttons);
        if (buttons.empty())
            return;
        CButton* const button = m_Random.Pick(buttons);
        m_Log.Note("press", button);
        if (m_Host.Mouse().IsHeld(mbLeft))
            m_Host.Mouse().Release();
        else if (m_Random.Chance(30))
            m_Host.Mouse().Press(*button, 3, 3);
        else
            m_Host.Mouse().Click(*button, 3, 3);
    }
    static void Find(CVisualElement* element, std::vector<CButton*>& buttons)
    {
        std::vector<CVisualElement*> all;
        Collect(element, all);
        for (CVisualElement* const one : all)
            if (auto* const button = dynamic_cast<CButton*>(one); button && button->IsDisplayable())
                buttons.push_back(button);
    }
    void UseGauge()
    {
        m_Log.Note("gauge");
        switch (m_Random.Int(0, 5))
        {
        case 0:
            m_Gauge->GetTitle().SetCaption(Words());
            break;
        case 1:
            m_Gauge->GetContent().GetText().SetCaption(Words());
            break;
        case 2:
            m_Gauge->GetImage().SetRasterPicture(CMessageBox::GetPicture(m_Random.Int(0, 4)));
            break;
        case 3:
            m_Gauge->GetContent().SetMaxWidth(m_Random.Int(0, 200));
            break;
        default:
            m_Gauge->GetContent().GetGauge().Increase(m_Random.Int(-10, 10));
            break;
        }
    }
    void RunStage()
    {
        m_Log.Note("stage");
        m_Stage.SetMessage(m_Random.Int(0, 5), Words(), Words());
        m_Stage.SetWaitMessage(m_Random.Int(0, 5), Words(), Words());
        m_Stage.SetButtons(static_cast<unsigned>(m_Random.Int(0, 3)), 1);
        m_Stage.SetRecheckOnButton(m_Random.Bool());
        m_Stage.Process(nullptr);
        m_StageBoxes += m_Stage.GetBox() && m_Stage.GetBox()->IsVisible();
    }
    void PassTime()
    {
        m_Log.Note("time");
        m_Host.RunPending();
        m_Host.Clock().Advance(m_Random.Int(10, 60));
    }

    CTestRandom& m_Random;
    CSharedLooks m_Looks;
    CTestHost m_Host;
    CGameLog m_Log;
    std::vector<CMessageBox*> m_Boxes;
    std::vector<CVisualElement*> m_Panes;
    CTitledGaugeBox* m_Gauge;
    std::vector<std::unique_ptr<CSlot<CVisualElement*>>> m_Deaths;
    std::vector<std::unique_ptr<CSlot<CMessageBox*, int>>> m_Ears;
    CCheckStageGui m_Stage;
    std::unique_ptr<CSlot<bool&>> m_Fails;
};

class IncrementalMessages : public testing::TestWithParam<double>
{};

TEST_P(IncrementalMessages, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int presses = 0;
    int levelled = 0;
    int stageBoxes = 0;
    for (int game = 0; game < 12; ++game)
    {
        CMessagesGame play(random, GetParam());
        for (int round = 0; round < 40; ++round)
        {
            for (int i = random.Int(1, 3); i > 0; --i)
                play.Step();
            play.Paint();
            ASSERT_EQ(play.Compare(), "") << play.Tell();
            play.ExpectLevel();
            if (HasFatalFailure())
                return;
        }
        presses += play.m_Presses;
        levelled += play.m_Levelled;
        stageBoxes += play.m_StageBoxes;
    }
    EXPECT_GT(presses, 10);
    EXPECT_GT(levelled, 100);
    EXPECT_GT(stageBoxes, 8);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalMessages, testing::Values(1.0, 1.5));

}  // namespace
