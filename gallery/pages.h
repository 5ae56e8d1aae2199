#pragma once

#include "gallery/frame/page.h"

#include <memory>
#include <span>

namespace gallery
{

/// An entry of the gallery's table of contents.
struct SPage
{
    char const* name;  ///< For the command line and for picture files.
    char const* title;
    char const* sentence;  ///< What is to be seen and tried.
    std::unique_ptr<CPage> (*make)();
};

std::span<SPage const> GetPages();
/// The page of this name, -1 if there is none.
int FindPage(std::string const& name);

}  // namespace gallery
