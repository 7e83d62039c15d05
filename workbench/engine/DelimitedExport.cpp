#include "workbench/engine/DelimitedText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <vector>

#include <csv.h>

#include "workbench/engine/AtomicFile.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Utf8.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
namespace
{
constexpr std::size_t BLOCK = 256 * 1024;

/// Collects the text and passes it on block by block.
class Writer
{
public:
    explicit Writer(std::string const& path) : m_file(path) { m_buffer.reserve(BLOCK + 1024); }

    void Put(char c) { m_buffer += c; }
    void Put(std::string_view text) { m_buffer += text; }

    void PutQuoted(std::string_view text)
    {
        auto const size = csv_write(nullptr, 0, text.data(), text.size());
        auto const old = m_buffer.size();
        m_buffer.resize(old + size);
        csv_write(m_buffer.data() + old, size, text.data(), text.size());
    }

    void PutNumber(double value)
    {
        std::array<char, 32> text;
        auto const end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
        m_buffer.append(text.data(), end);
    }

    /// True once in a block, when its bytes go to the file.
    bool PassOn()
    {
        if (m_buffer.size() < BLOCK)
            return false;
        Flush();
        return true;
    }

    void Commit()
    {
        Flush();
        m_file.Commit();
    }

private:
    void Flush()
    {
        m_file.Write(m_buffer.data(), m_buffer.size());
        m_buffer.clear();
    }

    AtomicFile m_file;
    std::string m_buffer;
};

/// Throws if `text` could not be read back.
void CheckText(std::string_view text, std::string const& owner)
{
    if (!IsUtf8(text) || text.find('\0') != std::string_view::npos)
        throw Error(owner
                    + " holds a text that is not UTF-8 or has a NUL character: it cannot be exported");
}

void CheckDataset(Dataset const& dataset, std::string const& owner)
{
    if (dataset.data.cols() < 2 || dataset.data.rows() == 0)
        throw Error(owner + " has no variables or no observations: there is nothing to export");
    if (dataset.varNames.GetCount() != static_cast<std::size_t>(dataset.data.cols()))
        throw Error(owner + " has not as many variable names as columns: it cannot be exported");
    for (auto const& name : dataset.varNames)
        CheckText(name.utf8_string(), owner);
    for (auto const& entry : dataset.labelledColumns)
        for (auto const& label : entry.second.labels)
            CheckText(label, owner);
}

/// The columns' labels by column, null for a column of numbers.
std::vector<LabelledColumn const*> LabelsByColumn(Dataset const& dataset)
{
    std::vector<LabelledColumn const*> columns(static_cast<std::size_t>(dataset.data.cols()));
    for (auto const& [column, labelled] : dataset.labelledColumns)
        if (column > 0 && column < dataset.data.cols())
            columns[static_cast<std::size_t>(column)] = &labelled;
    return columns;
}

void WriteNames(Writer& writer, Dataset const& dataset, char delimiter)
{
    for (std::size_t j = 1; j < dataset.varNames.GetCount(); ++j)
    {
        if (j > 1)
            writer.Put(delimiter);
        std::string const name = dataset.varNames[j].utf8_string();
        // Quotes around all names would say that quotes mean nothing; legal names need none.
        if (CheckID(name))
            writer.Put(name);
        else
            writer.PutQuoted(name);
    }
    writer.Put('\n');
}
} // namespace

void ExportDelimited(Dataset const& dataset, std::string const& path, char delimiter, Progress& progress)
{
    CheckDelimiter(delimiter);
    CheckDataset(dataset, "dataset " + Quoted(dataset.name.utf8_string()));
    ProgressScope scope(progress, "Exporting " + path);
    Writer writer(path);
    WriteNames(writer, dataset, delimiter);

    auto const labels = LabelsByColumn(dataset);
    auto const rows = dataset.data.rows();
    // A lone empty value would make a blank line, which an import skips.
    std::string_view const missing = labels.size() == 2 ? "." : "";
    for (Eigen::Index i = 0; i < rows; ++i)
    {
        for (std::size_t j = 1; j < labels.size(); ++j)
        {
            if (j > 1)
                writer.Put(delimiter);
            double const value = dataset.data(i, static_cast<Eigen::Index>(j));
            auto const row = static_cast<std::size_t>(i);
            if (labels[j])
                writer.PutQuoted(row < labels[j]->labels.size() ? labels[j]->labels[row]
                                                                : std::string());
            else if (std::isnan(value))
                writer.Put(missing);
            else
                writer.PutNumber(value);
        }
        writer.Put('\n');
        if (writer.PassOn())
            scope.Update(static_cast<std::uint64_t>(i), static_cast<std::uint64_t>(rows));
    }
    scope.Update(1.0);
    writer.Commit();
}

void ExportMatrix(Eigen::MatrixXd const& matrix, std::string const& name, std::string const& path,
                  char delimiter, Progress& progress)
{
    CheckDelimiter(delimiter);
    if (matrix.size() == 0)
        throw Error("matrix " + Quoted(name) + " has no elements: there is nothing to export");
    ProgressScope scope(progress, "Exporting " + path);
    Writer writer(path);
    for (Eigen::Index row = 0; row < matrix.rows(); ++row)
    {
        for (Eigen::Index col = 0; col < matrix.cols(); ++col)
        {
            if (col > 0)
                writer.Put(delimiter);
            double const value = matrix(row, col);
            if (std::isnan(value))
                writer.Put("NaN");
            else
                writer.PutNumber(value);
        }
        writer.Put('\n');
        if (writer.PassOn())
            scope.Update(static_cast<std::uint64_t>(row), static_cast<std::uint64_t>(matrix.rows()));
    }
    writer.Commit();
}
} // namespace workbench
