#include "workbench/engine/RecordReader.h"

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <vector>

#include <csv.h>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Utf8.h"

namespace workbench
{
namespace
{
constexpr std::size_t BLOCK = 256 * 1024;
constexpr std::size_t MAX_CELL = 1024 * 1024;
constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

double Fraction(std::uint64_t done, std::uint64_t total)
{
    return total == 0 ? 1.0 : static_cast<double>(done) / static_cast<double>(total);
}

/// Counts physical lines: "\n", "\r\n" and "\r" each end one.
class LineCounter
{
public:
    explicit LineCounter(std::uint64_t start) { m_place.lineStart = m_place.offset = start; }

    /// A line end `c` stands at `offset`.
    void LineEnd(char c, std::uint64_t offset)
    {
        bool const second = c == '\n' && m_lastReturn + 1 == offset && m_lastReturn != NONE;
        m_place.line += second ? 0 : 1;
        m_place.lineStart = offset + 1;
        m_lastReturn = c == '\r' ? offset : NONE;
    }

    TextPlace At(std::uint64_t offset) const { return {m_place.line, m_place.lineStart, offset}; }

private:
    static constexpr std::uint64_t NONE = static_cast<std::uint64_t>(-1);

    TextPlace m_place;
    std::uint64_t m_lastReturn = NONE;
};

/// What a byte means to the survey.
enum class Meaning : unsigned char
{
    Plain,
    Blank,
    Quote,
    LineEnd,
    Nul,
    Wide
};

std::array<Meaning, 256> Meanings(char delimiter)
{
    std::array<Meaning, 256> meanings;
    meanings.fill(Meaning::Plain);
    for (std::size_t byte = 0x80; byte < 0x100; ++byte)
        meanings[byte] = Meaning::Wide;
    meanings[' '] = meanings['\t'] = Meaning::Blank;
    meanings['"'] = Meaning::Quote;
    meanings['\n'] = meanings['\r'] = Meaning::LineEnd;
    meanings[0] = Meaning::Nul;
    meanings[static_cast<unsigned char>(delimiter)] = Meaning::Plain;
    return meanings;
}

/// The state of the survey between two blocks.
class Surveyor
{
public:
    Surveyor(InputFile const& file, char delimiter, std::uint64_t start)
        : m_file(file), m_meanings(Meanings(delimiter)), m_lines(start)
    {
    }

    /// Takes a block that stands at `offset` and gives the number of its bytes that are done: a
    /// character cut off at its end is left for the next block, unless this is the `last`.
    std::size_t Take(std::string_view block, std::uint64_t offset, bool last)
    {
        std::size_t position = 0;
        while (position < block.size())
        {
            switch (m_meanings[static_cast<unsigned char>(block[position])])
            {
            case Meaning::Plain:
                m_filled = true;
                break;
            case Meaning::Blank:
                break;
            case Meaning::Quote:
                // Within a well-formed file the number of quotes so far tells what stands in them.
                m_inQuotes = !m_inQuotes;
                m_filled = true;
                break;
            case Meaning::LineEnd:
                m_lines.LineEnd(block[position], offset + position);
                if (!m_inQuotes)
                    EndRecord();
                break;
            case Meaning::Nul:
                throw Error(Describe(m_file, m_lines.At(offset + position))
                            + "a NUL byte, which no text file holds");
            case Meaning::Wide:
            {
                auto const length = CharacterLength(block, position);
                if (length == 0 && !last && block.size() - position < 4)
                    return position;
                if (length == 0)
                    throw Error(
                        Describe(m_file, m_lines.At(offset + position))
                        + "a byte that is not UTF-8; save the file as UTF-8 and import it again");
                position += length - 1;
                m_filled = true;
                break;
            }
            }
            ++position;
        }
        return position;
    }

    std::uint64_t Finish()
    {
        EndRecord();
        return m_records;
    }

private:
    void EndRecord()
    {
        m_records += m_filled ? 1 : 0;
        m_filled = false;
    }

    InputFile const& m_file;
    std::array<Meaning, 256> m_meanings;
    LineCounter m_lines;
    bool m_inQuotes = false;
    bool m_filled = false; ///< The record has more than blanks so far.
    std::uint64_t m_records = 0;
};

/// libcsv with the places of the cells.
///
/// libcsv tells neither where a cell stood nor whether in quotes. So the text goes to it in pieces
/// that end before and behind each character that may end a cell, and what it then reports belongs
/// to that character. It calls back through C functions, which no exception may cross.
class Parser
{
public:
    Parser(InputFile const& file, char delimiter, std::uint64_t start, RecordSink& sink)
        : m_file(file), m_sink(sink), m_delimiter(delimiter), m_lines(start), m_cell(m_lines.At(start)),
          m_record(m_cell)
    {
        if (csv_init(&m_csv, CSV_STRICT | CSV_STRICT_FINI) != 0)
            throw std::bad_alloc();
        csv_set_delim(&m_csv, static_cast<unsigned char>(delimiter));
        csv_set_blk_size(&m_csv, 1024);
    }
    ~Parser() { csv_free(&m_csv); }
    Parser(Parser const&) = delete;
    Parser& operator=(Parser const&) = delete;

    void Take(std::string_view block, std::uint64_t offset)
    {
        std::size_t position = 0;
        while (position < block.size())
        {
            auto const end = FindBreak(block, position);
            Feed(block, position, end, offset);
            if (end == block.size())
                return;
            Feed(block, end, end + 1, offset);
            Break(block[end], offset + end);
            position = end + 1;
        }
    }

    void Finish()
    {
        m_quoted = m_csv.quoted != 0;
        int const result = csv_fini(&m_csv, OnCell, OnRecord, this);
        Rethrow();
        if (result != 0)
            throw Error(Describe(m_file, SkipBlanks(m_cell))
                        + "a quoted value that begins here has no closing quote");
    }

private:
    std::size_t FindBreak(std::string_view block, std::size_t position) const
    {
        while (position < block.size() && block[position] != m_delimiter && block[position] != '\n'
               && block[position] != '\r')
            ++position;
        return position;
    }

    void Feed(std::string_view block, std::size_t from, std::size_t to, std::uint64_t offset)
    {
        if (from == to)
            return;
        m_quoted = m_csv.quoted != 0;
        m_cellEnded = false;
        auto const done = csv_parse(&m_csv, block.data() + from, to - from, OnCell, OnRecord, this);
        Rethrow();
        if (done != to - from)
            Refuse(block[from + done], offset + from + done);
        if (m_csv.entry_pos > MAX_CELL)
            throw Error(Describe(m_file, SkipBlanks(m_cell))
                        + "a value of more than a million bytes begins here; is a quote missing?");
    }

    /// The character `c` at `offset`, which may have ended a cell, went to libcsv.
    void Break(char c, std::uint64_t offset)
    {
        bool const lineEnd = c != m_delimiter;
        if (lineEnd)
            m_lines.LineEnd(c, offset);
        // An unquoted line end that ended no cell belongs to a blank line.
        if (m_cellEnded || (lineEnd && m_csv.quoted == 0))
            m_cell = m_lines.At(offset + 1);
        if (lineEnd && m_csv.quoted == 0)
            m_record = m_cell;
    }

    [[noreturn]] void Refuse(char c, std::uint64_t offset) const
    {
        if (csv_error(const_cast<csv_parser*>(&m_csv)) == CSV_ENOMEM)
            throw std::bad_alloc();
        auto const where = Describe(m_file, m_lines.At(offset));
        if (c == '"')
            throw Error(where + "a quote inside of a value that does not begin with one");
        throw Error(where + "a quoted value goes on behind its closing quote");
    }

    TextPlace SkipBlanks(TextPlace place) const
    {
        for (char c;
             m_file.ReadAt(place.offset, &c, 1) == 1 && (c == ' ' || c == '\t') && c != m_delimiter;)
            ++place.offset;
        return place;
    }

    static void OnCell(void* text, std::size_t size, void* self)
    {
        auto& parser = *static_cast<Parser*>(self);
        parser.m_cellEnded = true;
        std::string_view const cell(static_cast<char const*>(text), size);
        parser.Guard([&] { parser.m_sink.Cell(cell, parser.m_quoted, parser.m_cell); });
    }

    static void OnRecord(int, void* self)
    {
        auto& parser = *static_cast<Parser*>(self);
        parser.Guard([&] { parser.m_sink.EndRecord(parser.m_record); });
    }

    template <class Action>
    void Guard(Action const& action)
    {
        if (m_failure)
            return;
        try
        {
            action();
        }
        catch (...)
        {
            m_failure = std::current_exception();
        }
    }

    void Rethrow() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

    InputFile const& m_file;
    RecordSink& m_sink;
    char m_delimiter;
    csv_parser m_csv;
    LineCounter m_lines;
    TextPlace m_cell;   ///< Where the current cell began.
    TextPlace m_record; ///< Where the current record began.
    bool m_quoted = false;
    bool m_cellEnded = false;
    std::exception_ptr m_failure;
};
} // namespace

std::string Describe(InputFile const& file, TextPlace const& place)
{
    // The column of a place far out in a line is not worth reading the line again.
    std::string line(std::min<std::uint64_t>(place.offset - place.lineStart, MAX_CELL), '\0');
    line.resize(file.ReadAt(place.lineStart, line.data(), line.size()));
    return Quoted(file.Path()) + ", line " + std::to_string(place.line) + ", column "
           + std::to_string(CountCharacters(line) + 1) + ": ";
}

Survey SurveyText(InputFile const& file, char delimiter, ProgressScope& progress, double share)
{
    std::vector<char> buffer(BLOCK);
    Survey survey;
    std::string mark(BYTE_ORDER_MARK.size(), '\0');
    mark.resize(file.ReadAt(0, mark.data(), mark.size()));
    survey.start = mark == BYTE_ORDER_MARK ? mark.size() : 0;

    Surveyor surveyor(file, delimiter, survey.start);
    for (std::uint64_t offset = survey.start;;)
    {
        progress.Update(share * Fraction(offset, file.Size()));
        auto const got = file.ReadAt(offset, buffer.data(), buffer.size());
        bool const last = got < buffer.size();
        offset += surveyor.Take({buffer.data(), got}, offset, last);
        if (last)
            break;
    }
    survey.records = surveyor.Finish();
    return survey;
}

void ReadRecords(InputFile const& file, Survey const& survey, char delimiter, RecordSink& sink,
                 ProgressScope& progress, double from, double to)
{
    std::vector<char> buffer(BLOCK);
    Parser parser(file, delimiter, survey.start, sink);
    for (std::uint64_t offset = survey.start;;)
    {
        progress.Update(from + (to - from) * Fraction(offset, file.Size()));
        auto const got = file.ReadAt(offset, buffer.data(), buffer.size());
        parser.Take({buffer.data(), got}, offset);
        offset += got;
        if (got < buffer.size())
            break;
    }
    parser.Finish();
}
} // namespace workbench
