#pragma once

#include "vexel/controls/button.h"
#include "vexel/controls/button_captions.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/message_box.h"

namespace vexel::test
{

/// Forgets at its end the pictures 0 to 9 and the captions that boxes share.
class CSharedLooks
{
public:
    CSharedLooks() = default;
    ~CSharedLooks()
    {
        for (int type = 0; type < 10; ++type)
            CMessageBox::SetPicture(type, nullptr);
        GetButtonCaptions().clear();
    }
    CSharedLooks(CSharedLooks const&) = delete;
    CSharedLooks& operator=(CSharedLooks const&) = delete;

    /// Stores a picture of this extent in one colour.
    static vexel_ptr<IRasterPicture> NewPicture(int type, size<int> const& extent)
    {
        vexel_ptr<IRasterPicture> const picture = CTestHost::System().CreateRasterPicture(extent);
        CMessageBox::SetPicture(type, picture);
        return picture;
    }
};

/// The buttons of a set are the even children of its row.
inline CButton& ButtonOf(CMessageBox& box, int index)
{
    return dynamic_cast<CButton&>(*box.GetButtons().GetContainer()->GetChildren()->GetItem(2 * index));
}

}  // namespace vexel::test
