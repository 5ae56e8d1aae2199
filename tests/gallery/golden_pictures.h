#pragma once

#include "vexel/platform/pixel_buffer.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace vexel::test
{

/// A folder of pictures that were accepted once, and how a picture of today stands to them: equal in every pixel, or
/// not. What is not is written to another folder, with a picture of the difference.
class CGoldenPictures
{
public:
    /// `accept`: nothing fails; what is new or other is written into the folder, and what has no picture is deleted.
    CGoldenPictures(std::filesystem::path golden, std::filesystem::path failed, bool accept);

    /// Compares with the file NAME.png, in the 24 bits of colour. Empty if they are equal, otherwise how they differ,
    /// which files were written and what to do. `failed` has the files NAME.actual.png and, where the sizes agree,
    /// NAME.difference.png: differing pixels in red on a faint copy of the golden picture.
    std::string Check(std::string const& name, vexelbase::CPixelBuffer const& actual) const;

    /// The files of the folder that are none of these names' pictures, sorted.
    std::vector<std::string> FindOrphans(std::set<std::string> const& names) const;

    /// How new pictures are accepted.
    static constexpr char const* Advice = "If the new look is right, ./dev golden accepts it.";

private:
    std::filesystem::path const m_Golden;
    std::filesystem::path const m_Failed;
    bool const m_Accept;
};

}  // namespace vexel::test
