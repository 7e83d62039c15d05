#include "workbench/outside/ExchangeFile.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <vector>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/LabelMaker.h"
#include "workbench/engine/Utf8.h"
#include "workbench/engine/VariableNames.h"
#include "workbench/engine/Variables.h"

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "numbers are written as memory stands");

namespace workbench
{
namespace
{
/// No line of the file is as long.
constexpr std::size_t LONGEST_LINE = 100000;

void WriteNumbers(std::ofstream& file, Eigen::Ref<Eigen::MatrixXd const> const& numbers)
{
    file.write(reinterpret_cast<char const*>(numbers.data()),
               static_cast<std::streamsize>(numbers.size() * static_cast<Eigen::Index>(sizeof(double))));
}

void WriteDataset(std::ofstream& file, Dataset const& dataset)
{
    auto const rows = dataset.data.rows();
    auto const cols = std::max<Eigen::Index>(0, dataset.data.cols() - 1);
    file << "dataset " << rows << ' ' << cols << '\n';
    for (Eigen::Index column = 1; column <= cols; ++column)
    {
        auto const name = VariableName(dataset, column);
        if (!HoldsText(dataset, column))
        {
            file << "number " << name << '\n';
            WriteNumbers(file, dataset.data.col(column));
            continue;
        }
        std::string texts;
        auto const& labelled = dataset.labelledColumns.at(static_cast<int>(column));
        for (Eigen::Index row = 0; row < rows; ++row)
            texts += std::string(LabelAt(labelled, row)) + '\0';
        file << "text " << texts.size() << ' ' << name << '\n' << texts;
    }
}

/// Reads a file piece by piece.
class Reader
{
public:
    explicit Reader(std::string const& path) : m_file(path) {}

    [[noreturn]] static void FailTorn() { throw Error("what came back is torn"); }

    /// The next line, without its end.
    std::istringstream Line()
    {
        // A piece holds all but the strangest lines, of which a file may have as many as variables.
        constexpr std::size_t PIECE = 1000;
        std::string line;
        while (line.size() < LONGEST_LINE)
        {
            auto const begin = line.size();
            line.resize(begin + PIECE);
            line.resize(begin + m_file.ReadAt(m_at + begin, &line[begin], PIECE));
            if (line.size() == begin)
                break;
            if (auto const end = line.find('\n', begin); end != std::string::npos)
            {
                m_at += end + 1;
                return std::istringstream(line.substr(0, end));
            }
        }
        FailTorn();
    }

    bool Has(std::uint64_t size) const { return size <= m_file.Size() - m_at; }

    void Read(char* buffer, std::uint64_t size)
    {
        if (!Has(size) || m_file.ReadAt(m_at, buffer, size) != size)
            FailTorn();
        m_at += size;
    }

    /// As many numbers as `numbers` has.
    void Read(Eigen::Ref<Eigen::MatrixXd> numbers)
    {
        Read(reinterpret_cast<char*>(numbers.data()),
             static_cast<std::uint64_t>(numbers.size()) * sizeof(double));
    }

    void CheckEnd() const
    {
        if (m_at != m_file.Size())
            FailTorn();
    }

private:
    InputFile m_file;
    std::uint64_t m_at = 0;
};

/// The rest of a line behind the blank that follows what was read.
std::string RestOf(std::istringstream& line)
{
    std::string rest;
    line.get();
    std::getline(line, rest);
    return rest;
}

/// Makes numbers and a column of text of texts that end in a NUL each.
LabelledColumn ReadTexts(std::string const& texts, Eigen::Ref<Eigen::VectorXd> numbers)
{
    LabelMaker maker;
    std::size_t at = 0;
    for (double& number : numbers)
    {
        auto const end = texts.find('\0', at);
        if (end == std::string::npos)
            Reader::FailTorn();
        auto const text = texts.substr(at, end - at);
        if (!IsUtf8(text))
            throw Error("a text that came back is not in UTF-8");
        number = maker.Add(text);
        at = end + 1;
    }
    if (at != texts.size())
        Reader::FailTorn();
    return std::move(maker.made);
}

Exchanged ReadDataset(Reader& reader, Eigen::Index rows, Eigen::Index cols)
{
    if (rows == 0 || cols == 0)
        throw Error("a dataset that comes back needs a variable and an observation at least");
    VariableNames names;
    std::vector<Eigen::VectorXd> columns;
    std::map<int, LabelledColumn> labelled;
    for (int column = 1; column <= cols; ++column)
    {
        auto line = reader.Line();
        std::string kind;
        std::uint64_t size = static_cast<std::uint64_t>(rows) * sizeof(double);
        line >> kind;
        if (kind == "text")
            line >> size;
        if ((kind != "text" && kind != "number") || !line || !reader.Has(size))
            Reader::FailTorn();
        names.Add(RestOf(line));
        // A text has a byte at least, so there is memory for as many numbers as there may be.
        if (kind == "text" && size < static_cast<std::uint64_t>(rows))
            Reader::FailTorn();
        columns.emplace_back(rows);
        if (kind == "number")
        {
            reader.Read(columns.back());
            // Missing values are alike, whatever stands for them elsewhere.
            for (double& number : columns.back())
                if (std::isnan(number))
                    number = std::numeric_limits<double>::quiet_NaN();
            continue;
        }
        std::string texts(size, '\0');
        reader.Read(texts.data(), size);
        labelled.emplace(column, ReadTexts(texts, columns.back()));
    }
    auto const dataset = MakeDataset(names.Names(), rows);
    for (std::size_t column = 0; column < columns.size(); ++column)
        dataset->data.col(static_cast<Eigen::Index>(column + 1)) = columns[column];
    dataset->labelledColumns = std::move(labelled);
    return {dataset, names.Warning("what came back")};
}

Exchanged ReadMatrix(Reader& reader, Eigen::Index rows, Eigen::Index cols)
{
    if (!reader.Has(static_cast<std::uint64_t>(rows) * static_cast<std::uint64_t>(cols)
                    * sizeof(double)))
        Reader::FailTorn();
    auto const matrix = std::make_shared<Eigen::MatrixXd>(rows, cols);
    reader.Read(*matrix);
    return {matrix, {}};
}
} // namespace

void WriteExchange(std::string const& path, Object const& object)
{
    std::ofstream file(path, std::ios::binary);
    if (auto const* dataset = std::get_if<std::shared_ptr<Dataset>>(&object))
        WriteDataset(file, **dataset);
    else if (auto const* matrix = std::get_if<std::shared_ptr<Eigen::MatrixXd>>(&object))
    {
        file << "matrix " << (*matrix)->rows() << ' ' << (*matrix)->cols() << '\n';
        WriteNumbers(file, **matrix);
    }
    file.close();
    if (!file)
        throw Error(SystemMessage(path, "written", errno));
}

Exchanged ReadExchange(std::string const& path)
{
    Reader reader(path);
    auto line = reader.Line();
    std::string kind;
    Eigen::Index rows = -1;
    Eigen::Index cols = -1;
    line >> kind >> rows >> cols;
    // Indices of rows and columns are ints in the toolkit and in the record.
    constexpr auto most = std::numeric_limits<int>::max();
    if (!line || rows < 0 || cols < 0 || rows > most || cols > most
        || (kind != "matrix" && kind != "dataset"))
        Reader::FailTorn();
    auto exchanged = kind == "matrix" ? ReadMatrix(reader, rows, cols) : ReadDataset(reader, rows, cols);
    reader.CheckEnd();
    return exchanged;
}
} // namespace workbench
