#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace workbench
{
class InputFile;
class ProgressScope;

/// Where something stands in a file of text: all that is needed to tell its line and column later.
struct TextPlace
{
    std::uint64_t line = 1;      ///< Physical line, from 1.
    std::uint64_t lineStart = 0; ///< Offset of the line's first byte.
    std::uint64_t offset = 0;
};

/// "PATH, line 3, column 7: ", the column counting characters.
std::string Describe(InputFile const& file, TextPlace const& place);

/// Is handed the cells of a file in their order.
class RecordSink
{
public:
    virtual ~RecordSink() = default;

    /// One cell. `place` is where it begins, blanks before it included.
    virtual void Cell(std::string_view text, bool quoted, TextPlace const& place) = 0;

    /// The record is complete. `place` is where it began.
    virtual void EndRecord(TextPlace const& place) = 0;
};

/// What a first look at a file tells.
struct Survey
{
    std::uint64_t start = 0;   ///< Offset behind a byte-order mark.
    std::uint64_t records = 0; ///< At most so many records, blank lines not counted.
};

/// Looks through the file once: counts its records, and throws an Error at a byte that is no text.
/// Reports progress from 0 to `share`.
Survey SurveyText(InputFile const& file, char delimiter, ProgressScope& progress, double share);

/// Parses the file block by block and hands its cells to `sink`. Throws an Error at a misplaced or
/// missing quote and at a cell of more than a megabyte.
/// Reports progress from `from` to `to`.
void ReadRecords(InputFile const& file, Survey const& survey, char delimiter, RecordSink& sink,
                 ProgressScope& progress, double from, double to);
} // namespace workbench
