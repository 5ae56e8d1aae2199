#pragma once

#include "vexel/widgets/message_box.h"

namespace workbench
{

using namespace vexel;

/// What the messages of the program look like and what their buttons say, as long as one of these lives.
class CMessageSetUp
{
public:
    enum Image : int
    {
        ImageInfo = 1,
        ImageWarning = 2,
        ImageError = 3
    };
    enum Button : int
    {
        ButtonOk = 1,
        ButtonRetry = 2,
        ButtonGoOn = 4,
        ButtonQuit = 8
    };

    CMessageSetUp();
    ~CMessageSetUp();
    CMessageSetUp(CMessageSetUp const&) = delete;
    CMessageSetUp& operator=(CMessageSetUp const&) = delete;
};

}  // namespace workbench
