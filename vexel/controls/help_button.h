#pragma once

#include "vexel/controls/caption_button.h"

namespace vexel
{

/// A caption button that shows a help sign.
class VEXEL_API CHelpButton : public CCaptionButton
{
public:
    CHelpButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);
};

}  // namespace vexel
