#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

namespace chart
{

/// Columns of numbers. All are of the same length; what is no number is NaN.
struct SNumbers
{
    std::vector<std::string> names;
    std::vector<std::vector<double>> columns;
    std::size_t unreadable = 0;  ///< Fields that hold something else than a number.
};

/// Reads lines of fields parted by commas, semicolons or tabs, whichever the first line has most of. A first line with a
/// field that is no number has the names; else the columns are called by their place. With semicolons a comma may stand in
/// a number. Quotes around a field are taken off. Short lines have gaps at their end; what a line has more than the first
/// one counts as unreadable.
SNumbers ReadNumbers(std::istream& text);

/// Puts the rows in ascending order of the first column, and drops those that have no number there. A single column gets
/// the number of the row, from 1 on, before it.
void SortByFirst(SNumbers& numbers);

}  // namespace chart
