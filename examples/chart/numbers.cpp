#include "numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>
#include <string_view>
#include <utility>

namespace chart
{

namespace
{

char FindDelimiter(std::string_view line)
{
    char found = ',';
    for (char const one : {';', '\t'})
        if (std::count(line.begin(), line.end(), one) > std::count(line.begin(), line.end(), found))
            found = one;
    return found;
}

std::string_view Trim(std::string_view field)
{
    constexpr char const* blanks = " \r";
    std::size_t const first = field.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    field = field.substr(first, field.find_last_not_of(blanks) - first + 1);
    if (field.size() >= 2 && field.front() == '"' && field.back() == '"')
        field = field.substr(1, field.size() - 2);
    return field;
}

// A delimiter between quotes is none.
std::vector<std::string_view> Split(std::string_view line, char delimiter)
{
    std::vector<std::string_view> fields;
    bool quoted = false;
    std::size_t begin = 0;
    for (std::size_t i = 0; i <= line.size(); ++i)
    {
        if (i < line.size() && line[i] == '"')
            quoted = !quoted;
        if (i < line.size() && (quoted || line[i] != delimiter))
            continue;
        fields.push_back(Trim(line.substr(begin, i - begin)));
        begin = i + 1;
    }
    return fields;
}

// False: something else than a number. An empty field is a gap.
bool ReadNumber(std::string_view field, bool commas, double& number)
{
    number = std::numeric_limits<double>::quiet_NaN();
    if (field.empty())
        return true;
    std::string text(field.front() == '+' ? field.substr(1) : field);
    if (commas)
        std::replace(text.begin(), text.end(), ',', '.');
    double read = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), read);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(read))
        return false;
    number = read;
    return true;
}

}  // namespace

SNumbers ReadNumbers(std::istream& text)
{
    SNumbers numbers;
    std::string line;
    if (!std::getline(text, line))
        return numbers;
    if (line.starts_with("\xEF\xBB\xBF"))
        line.erase(0, 3);
    char const delimiter = FindDelimiter(line);
    bool const commas = delimiter == ';';
    double number = 0;
    bool named = false;
    for (std::string_view const field : Split(line, delimiter))
    {
        named = named || !ReadNumber(field, commas, number);
        numbers.names.emplace_back(field);
    }
    numbers.columns.resize(numbers.names.size());
    if (!named)
        for (std::size_t i = 0; i < numbers.names.size(); ++i)
            numbers.names[i] = "column " + std::to_string(i + 1);

    for (bool more = !named || std::getline(text, line); more; more = static_cast<bool>(std::getline(text, line)))
    {
        if (Trim(line).empty())
            continue;
        std::vector<std::string_view> const fields = Split(line, delimiter);
        for (std::size_t i = 0; i < std::max(fields.size(), numbers.columns.size()); ++i)
        {
            bool const readable = ReadNumber(i < fields.size() ? fields[i] : "", commas, number);
            numbers.unreadable += readable && i < numbers.columns.size() ? 0 : 1;
            if (i < numbers.columns.size())
                numbers.columns[i].push_back(number);
        }
    }
    return numbers;
}

void SortByFirst(SNumbers& numbers)
{
    if (numbers.columns.empty())
        return;
    if (numbers.columns.size() == 1)
    {
        std::vector<double> rows(numbers.columns[0].size());
        std::iota(rows.begin(), rows.end(), 1.0);
        numbers.columns.insert(numbers.columns.begin(), std::move(rows));
        numbers.names.insert(numbers.names.begin(), "row");
    }
    std::vector<double> const first = numbers.columns[0];
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < first.size(); ++i)
        if (!std::isnan(first[i]))
            order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return first[a] < first[b]; });
    for (std::vector<double>& column : numbers.columns)
    {
        std::vector<double> sorted;
        sorted.reserve(order.size());
        for (std::size_t const i : order)
            sorted.push_back(column[i]);
        column = std::move(sorted);
    }
}

}  // namespace chart
