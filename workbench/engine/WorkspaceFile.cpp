// A workspace file is a ZIP archive of stored entries: a manifest in JSON and one NumPy array for
// each matrix. docs/file-formats.md tells the layout.

#include "workbench/engine/WorkspaceFile.h"

#include <algorithm>
#include <deque>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <set>

#include <nlohmann/json.hpp>
#include <unistd.h>
#include <zip.h>

#include "workbench/engine/AtomicFile.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/NumpyArray.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Utf8.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
namespace
{
using nlohmann::json;

constexpr char const* MANIFEST = "workspace.json";
constexpr char const* FORMAT = "Zenqo workspace";
constexpr int VERSION = 1;

/// The first of January 1980, as archives count days.
constexpr zip_uint16_t FIRST_DAY = 0x21;

constexpr std::size_t BLOCK = 256 * 1024;

std::string EntryName(char const* folder, std::size_t index)
{
    return std::string(folder) + "/" + std::to_string(index) + ".npy";
}

bool HasDraws(Model const& model) { return model.draws.size() > 0; }

/// Whether the draws are a column for each name and chains of one length, or there are none at all.
bool DrawsFit(Model const& model)
{
    if (!HasDraws(model))
        return model.draws.rows() == 0 && model.draws.cols() == 0 && model.chains == 0;
    return model.draws.cols() == static_cast<Eigen::Index>(model.drawNames.size()) && model.chains > 0
           && model.draws.rows() % model.chains == 0;
}

// ---------------------------------------------------------------------------------------- saving

/// Throws if `text` is no UTF-8, which a manifest cannot hold.
std::string const& Checked(std::string const& text, std::string const& owner)
{
    if (!IsUtf8(text))
        throw Error(owner + " holds a text that is not UTF-8, which a workspace file cannot keep");
    return text;
}

json CheckedArray(std::vector<std::string> const& texts, std::string const& owner)
{
    json array = json::array();
    for (auto const& text : texts)
        array.push_back(Checked(text, owner));
    return array;
}

json DescribeDataset(std::string const& name, Dataset const& dataset, Structure const& structure,
                     std::string const& file)
{
    auto const owner = "dataset " + Quoted(name);
    auto const columns = static_cast<std::size_t>(dataset.data.cols());
    if (dataset.varNames.GetCount() != columns)
        throw Error(owner + " has " + std::to_string(dataset.varNames.GetCount())
                    + " variable names and " + std::to_string(columns) + " columns: it cannot be saved");

    json variables = json::array();
    for (auto const& variable : dataset.varNames)
        variables.push_back(Checked(variable.utf8_string(), owner));

    json text = json::array();
    for (auto const& [column, labelled] : dataset.labelledColumns)
    {
        if (column < 0 || column >= dataset.data.cols()
            || labelled.labels.size() > static_cast<std::size_t>(dataset.data.rows()))
            throw Error(owner + " has text that fits none of its columns: it cannot be saved");
        text.push_back({{"column", column},
                        {"levels", CheckedArray(labelled.levels, owner)},
                        {"labels", CheckedArray(labelled.labels, owner)}});
    }
    json entry = {
        {"name", Checked(name, owner)}, {"file", file}, {"variables", variables}, {"text", text}};
    if (!structure.IsEmpty())
    {
        Progress silent;
        CheckStructure(dataset, structure, silent);
        entry["structure"] = {
            {"time", structure.time}, {"format", structure.format}, {"group", structure.group}};
    }
    return entry;
}

/// What `model` was estimated from.
json DescribeEstimation(Model const& model, std::string const& owner)
{
    return {{"type", Checked(model.type, owner)},
            {"dataset", Checked(model.dataset, owner)},
            {"dependent", Checked(model.dependent, owner)},
            {"independent", CheckedArray(model.independent, owner)}};
}

/// Hands what libzip writes to an AtomicFile. libzip calls it through a C function, which no
/// exception may cross, so the exception waits here.
class Target
{
public:
    Target(std::string const& path, ProgressScope& progress, std::uint64_t expected)
        : m_file(path), m_progress(progress), m_expected(expected)
    {
        zip_error_init(&m_error);
    }
    ~Target() { zip_error_fini(&m_error); }

    zip_source_t* Source()
    {
        zip_error_t error;
        zip_error_init(&error);
        auto* const source = zip_source_function_create(&Target::Call, this, &error);
        zip_error_fini(&error);
        if (!source)
            throw std::bad_alloc();
        return source;
    }

    /// Throws what happened while libzip wrote, if anything did.
    void Rethrow() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

    void Commit() { m_file.Commit(); }

private:
    static zip_int64_t Call(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command)
    {
        return static_cast<Target*>(self)->Answer(data, length, command);
    }

    zip_int64_t Answer(void* data, zip_uint64_t length, zip_source_cmd_t command)
    {
        switch (command)
        {
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_WRITABLE;
        case ZIP_SOURCE_STAT:
            // There is no old archive to add to.
            return Refuse(ZIP_ER_READ, ENOENT);
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&m_error, data, length);
        case ZIP_SOURCE_WRITE:
            return Write(static_cast<char const*>(data), length);
        case ZIP_SOURCE_SEEK_WRITE:
            return Seek(data, length);
        case ZIP_SOURCE_TELL_WRITE:
            return static_cast<zip_int64_t>(m_file.Tell());
        case ZIP_SOURCE_BEGIN_WRITE:
        case ZIP_SOURCE_COMMIT_WRITE:
        case ZIP_SOURCE_ROLLBACK_WRITE:
        case ZIP_SOURCE_FREE:
            return 0;
        default:
            return Refuse(ZIP_ER_OPNOTSUPP, 0);
        }
    }

    zip_int64_t Refuse(int code, int system)
    {
        zip_error_set(&m_error, code, system);
        return -1;
    }

    zip_int64_t Write(char const* data, zip_uint64_t length)
    {
        try
        {
            m_file.Write(data, length);
            m_end = std::max(m_end, m_file.Tell());
            m_progress.Update(m_file.Tell(), m_expected);
            return static_cast<zip_int64_t>(length);
        }
        catch (...)
        {
            m_failure = std::current_exception();
            return Refuse(ZIP_ER_WRITE, EIO);
        }
    }

    zip_int64_t Seek(void* data, zip_uint64_t length)
    {
        auto const offset = zip_source_seek_compute_offset(m_file.Tell(), m_end, data, length, &m_error);
        if (offset < 0)
            return -1;
        m_file.Seek(static_cast<std::uint64_t>(offset));
        return 0;
    }

    AtomicFile m_file;
    ProgressScope& m_progress;
    std::uint64_t m_expected;
    std::uint64_t m_end = 0; ///< The size of what is written.
    zip_error_t m_error;
    std::exception_ptr m_failure;
};

/// The entries of an archive to be, which keeps the heads of its arrays; their values stay where
/// they are, in the workspace.
class Contents
{
public:
    std::string Add(std::string name, Eigen::MatrixXd const& matrix)
    {
        auto const head = WriteNumpyHead({matrix.rows(), matrix.cols(), true});
        auto const* const data = reinterpret_cast<char const*>(matrix.data());
        return Add(std::move(name), head, data,
                   static_cast<std::size_t>(matrix.size()) * sizeof(double));
    }

    std::string Add(std::string name, std::string text, char const* data = nullptr, std::size_t size = 0)
    {
        m_bytes += text.size() + size;
        m_entries.push_back({std::move(name), std::move(text), data, size});
        return m_entries.back().name;
    }

    std::uint64_t Bytes() const { return m_bytes; }

    void WriteTo(Target& target) const
    {
        auto* const source = target.Source();
        zip_error_t error;
        zip_error_init(&error);
        zip_t* const archive = zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, &error);
        std::string const reason = archive ? "" : zip_error_strerror(&error);
        zip_error_fini(&error);
        if (!archive)
        {
            zip_source_free(source);
            throw Error("the workspace cannot be written: " + reason);
        }
        for (auto const& entry : m_entries)
            if (!AddTo(archive, entry))
                Abandon(archive, target);
        if (zip_close(archive) != 0)
            Abandon(archive, target);
    }

private:
    struct Entry
    {
        std::string name;
        std::string text; ///< The entry's first bytes, kept here.
        char const* data; ///< Its further bytes, kept elsewhere.
        std::size_t size;
    };

    static bool AddTo(zip_t* archive, Entry const& entry)
    {
        auto const bytes = [](char const* data)
        { return reinterpret_cast<zip_uint8_t*>(const_cast<char*>(data)); };
        zip_buffer_fragment_t const fragments[] = {{bytes(entry.text.data()), entry.text.size()},
                                                   {bytes(entry.data), entry.size}};
        auto* const source = zip_source_buffer_fragment_create(fragments, entry.size > 0 ? 2 : 1, 0,
                                                               zip_get_error(archive));
        if (!source)
            return false;
        auto const index = zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0)
        {
            zip_source_free(source);
            return false;
        }
        // Without the time of day in it, the same workspace always makes the same file.
        auto const number = static_cast<zip_uint64_t>(index);
        return zip_set_file_compression(archive, number, ZIP_CM_STORE, 0) == 0
               && zip_file_set_dostime(archive, number, 0, FIRST_DAY, 0) == 0;
    }

    [[noreturn]] static void Abandon(zip_t* archive, Target const& target)
    {
        std::string const reason = zip_strerror(archive);
        zip_discard(archive);
        target.Rethrow();
        throw Error("the workspace cannot be written: " + reason);
    }

    std::deque<Entry> m_entries;
    std::uint64_t m_bytes = 0;
};

/// Adds the arrays of a model, the one with the number `index`, to `contents`.
json DescribeModel(std::string const& name, Model const& model, std::size_t index, Contents& contents)
{
    auto const owner = "model " + Quoted(name);
    if (!DrawsFit(model))
        throw Error(owner + " has draws that do not fit its names or chains: it cannot be saved");
    auto const folder = "models/" + std::to_string(index);
    json results = json::array();
    for (auto const& [key, value] : model.results)
    {
        auto const file = contents.Add(EntryName(folder.c_str(), results.size()), value);
        results.push_back({{"name", Checked(key, owner)}, {"file", file}});
    }
    json entry = {{"name", Checked(name, owner)},
                  {"drawNames", CheckedArray(model.drawNames, owner)},
                  {"results", results}};
    if (HasDraws(model))
        entry["draws"] = {{"file", contents.Add(folder + "/draws.npy", model.draws)},
                          {"chains", model.chains}};
    auto const estimation = DescribeEstimation(model, owner);
    if (estimation != DescribeEstimation(Model(), owner))
        entry["estimation"] = estimation;
    return entry;
}

// --------------------------------------------------------------------------------------- loading

/// What is wrong with an archive; becomes an Error that names the file.
struct Damage : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// An object of the manifest, which must have exactly the keys `keys`.
json const& CheckedKeys(json const& object, std::vector<char const*> const& keys)
{
    if (!object.is_object() || object.size() != keys.size())
        throw Damage("its manifest is malformed");
    for (char const* const key : keys)
        if (!object.contains(key))
            throw Damage("its manifest lacks " + Quoted(key));
    return object;
}

/// An entry of the manifest, which must have the keys `keys` and may have those of `further`.
json const& CheckedKeys(json const& object, std::initializer_list<char const*> keys,
                        std::initializer_list<char const*> further)
{
    std::vector<char const*> all(keys);
    std::copy_if(further.begin(), further.end(), std::back_inserter(all),
                 [&](char const* key) { return object.contains(key); });
    return CheckedKeys(object, all);
}

json const& ArrayAt(json const& object, char const* key)
{
    auto const& array = object.at(key);
    if (!array.is_array())
        throw Damage("its manifest has no list " + Quoted(key));
    return array;
}

std::string Text(json const& value)
{
    if (!value.is_string())
        throw Damage("its manifest has no text where one is expected");
    return value.get<std::string>();
}

std::vector<std::string> Texts(json const& object, char const* key)
{
    std::vector<std::string> texts;
    for (auto const& value : ArrayAt(object, key))
        texts.push_back(Text(value));
    return texts;
}

/// An archive open for reading.
class Archive
{
public:
    Archive(InputFile const& file, ProgressScope& progress) : m_progress(progress), m_size(file.Size())
    {
        int const descriptor = file.Duplicate();
        int code = 0;
        m_archive = zip_fdopen(descriptor, ZIP_CHECKCONS, &code);
        if (m_archive)
            return;
        close(descriptor);
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        std::string const reason = zip_error_strerror(&error);
        zip_error_fini(&error);
        throw Damage(reason);
    }
    ~Archive() { zip_discard(m_archive); }
    Archive(Archive const&) = delete;
    Archive& operator=(Archive const&) = delete;

    /// True once every entry was read that the archive holds.
    bool Exhausted() const
    {
        return static_cast<zip_int64_t>(m_read.size()) == zip_get_num_entries(m_archive, 0);
    }

    std::string ReadText(std::string const& name)
    {
        std::string text;
        Entry entry(*this, name);
        text.resize(entry.Size());
        entry.Read(text.data(), text.size());
        entry.Finish();
        return text;
    }

    Eigen::MatrixXd ReadMatrix(std::string const& name)
    {
        Entry entry(*this, name);
        auto const head = ReadHead(entry, name);
        auto const values = [&](auto& matrix)
        {
            matrix.resize(head.rows, head.cols);
            entry.Read(reinterpret_cast<char*>(matrix.data()), head.DataSize());
            entry.Finish();
        };
        if (head.columnMajor)
        {
            Eigen::MatrixXd matrix;
            values(matrix);
            return matrix;
        }
        Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> matrix;
        values(matrix);
        return matrix;
    }

private:
    /// One entry, open for reading.
    class Entry
    {
    public:
        Entry(Archive& archive, std::string const& name) : m_owner(archive), m_name(name)
        {
            auto* const zip = archive.m_archive;
            auto const index = zip_name_locate(zip, name.c_str(), 0);
            zip_stat_t stat;
            if (index < 0 || zip_stat_index(zip, static_cast<zip_uint64_t>(index), 0, &stat) != 0)
                throw Damage("it lacks the entry " + Quoted(name));
            if (!archive.m_read.insert(index).second)
                throw Damage("the entry " + Quoted(name) + " is named twice in its manifest");
            // Stored entries cannot be larger than the file: nothing is allocated on a false claim.
            constexpr auto needed = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD;
            if ((stat.valid & needed) != needed || stat.comp_method != ZIP_CM_STORE
                || stat.comp_size != stat.size || stat.size > archive.m_size)
                throw Damage("the entry " + Quoted(name) + " is not stored as it should be");
            m_size = stat.size;
            m_file = zip_fopen_index(zip, static_cast<zip_uint64_t>(index), 0);
            if (!m_file)
                throw Damage("the entry " + Quoted(name) + ": " + zip_strerror(zip));
        }
        ~Entry() { zip_fclose(m_file); }
        Entry(Entry const&) = delete;
        Entry& operator=(Entry const&) = delete;

        std::uint64_t Size() const { return m_size; }

        void Read(char* data, std::uint64_t size)
        {
            while (size > 0)
            {
                auto const got = zip_fread(m_file, data, std::min<std::uint64_t>(size, BLOCK));
                if (got <= 0)
                    Fail();
                data += got;
                size -= static_cast<std::uint64_t>(got);
                m_owner.m_bytes += static_cast<std::uint64_t>(got);
                m_owner.m_progress.Update(m_owner.m_bytes, m_owner.m_size);
            }
        }

        /// libzip compares the check sum when it is asked for more at the entry's end.
        void Finish()
        {
            char byte;
            if (zip_fread(m_file, &byte, 1) != 0)
                Fail();
        }

        [[noreturn]] void Fail() const
        {
            std::string const reason = zip_file_strerror(m_file);
            throw Damage("the entry " + Quoted(m_name) + ": " + reason);
        }

    private:
        Archive& m_owner;
        std::string m_name;
        zip_file_t* m_file = nullptr;
        std::uint64_t m_size = 0;
    };

    static NumpyHead ReadHead(Entry& entry, std::string const& name)
    {
        Damage const damage("the entry " + Quoted(name)
                            + " is not an array of numbers in two dimensions");
        if (entry.Size() < NUMPY_PREAMBLE)
            throw damage;
        std::string text(NUMPY_PREAMBLE, '\0');
        entry.Read(text.data(), NUMPY_PREAMBLE);
        auto const size = NumpyHeadSize(text);
        if (!size || *size > entry.Size())
            throw damage;
        text.resize(*size);
        entry.Read(text.data() + NUMPY_PREAMBLE, *size - NUMPY_PREAMBLE);
        auto const head = ReadNumpyHead(text, entry.Size() - *size);
        if (!head)
            throw damage;
        return *head;
    }

    zip_t* m_archive = nullptr;
    ProgressScope& m_progress;
    std::uint64_t m_size;
    std::uint64_t m_bytes = 0;
    std::set<zip_int64_t> m_read;
};

LabelledColumn ReadLabels(json const& entry, Dataset& dataset, int& column)
{
    CheckedKeys(entry, {"column", "levels", "labels"});
    auto const& number = entry.at("column");
    if (!number.is_number_unsigned()
        || number.get<std::uint64_t>() >= static_cast<std::uint64_t>(dataset.data.cols()))
        throw Damage("its manifest tells of text in a column that is not there");
    column = number.get<int>();
    LabelledColumn labelled{Texts(entry, "levels"), Texts(entry, "labels")};
    if (labelled.labels.size() > static_cast<std::size_t>(dataset.data.rows()))
        throw Damage("its manifest has more labels than there are observations");
    return labelled;
}

std::shared_ptr<Dataset> ReadDataset(json const& entry, Archive& archive)
{
    CheckedKeys(entry, {"name", "file", "variables", "text"}, {"structure"});
    auto dataset = std::make_shared<Dataset>();
    dataset->data = archive.ReadMatrix(Text(entry.at("file")));
    for (auto const& variable : Texts(entry, "variables"))
        dataset->varNames.Add(wxString::FromUTF8(variable));
    if (dataset->varNames.GetCount() != static_cast<std::size_t>(dataset->data.cols()))
        throw Damage("its manifest has not as many variable names as there are columns");
    for (auto const& text : ArrayAt(entry, "text"))
    {
        int column = 0;
        auto labelled = ReadLabels(text, *dataset, column);
        if (!dataset->labelledColumns.emplace(column, std::move(labelled)).second)
            throw Damage("its manifest has text twice for one column");
    }
    return dataset;
}

/// Gives the datasets of `workspace` the structures of which their entries tell.
void ReadStructures(json const& entries, Workspace& workspace)
{
    for (auto const& entry : entries)
    {
        if (!entry.contains("structure"))
            continue;
        auto const& told = CheckedKeys(entry.at("structure"), {"time", "format", "group"});
        Structure const structure{Text(told.at("time")), Text(told.at("format")),
                                  Text(told.at("group"))};
        auto const name = Text(entry.at("name"));
        try
        {
            Progress silent;
            CheckStructure(*workspace.datasets.at(name), structure, silent);
        }
        catch (Error const& error)
        {
            throw Damage("the structure of the dataset " + Quoted(name) + ": " + error.what());
        }
        workspace.SetStructure(name, structure);
    }
}

std::shared_ptr<Eigen::MatrixXd> ReadMatrix(json const& entry, Archive& archive)
{
    CheckedKeys(entry, {"name", "file"});
    return std::make_shared<Eigen::MatrixXd>(archive.ReadMatrix(Text(entry.at("file"))));
}

void ReadDraws(json const& entry, Archive& archive, Model& model)
{
    CheckedKeys(entry, {"file", "chains"});
    auto const& chains = entry.at("chains");
    if (!chains.is_number_unsigned()
        || chains.get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<int>::max()))
        throw Damage("its manifest tells of no number of chains where it should");
    model.chains = chains.get<int>();
    model.draws = archive.ReadMatrix(Text(entry.at("file")));
    if (!HasDraws(model) || !DrawsFit(model))
        throw Damage("it has draws that do not fit their names or chains");
}

std::shared_ptr<Model> ReadModel(json const& entry, Archive& archive)
{
    CheckedKeys(entry, {"name", "drawNames", "results"}, {"draws", "estimation"});
    auto model = std::make_shared<Model>();
    model->drawNames = Texts(entry, "drawNames");
    for (auto const& result : ArrayAt(entry, "results"))
    {
        CheckedKeys(result, {"name", "file"});
        if (!model->results.emplace(Text(result.at("name")), archive.ReadMatrix(Text(result.at("file"))))
                 .second)
            throw Damage("its manifest has one name for two results");
    }
    if (entry.contains("draws"))
        ReadDraws(entry.at("draws"), archive, *model);
    if (entry.contains("estimation"))
    {
        auto const& told =
            CheckedKeys(entry.at("estimation"), {"type", "dataset", "dependent", "independent"});
        model->type = Text(told.at("type"));
        model->dataset = Text(told.at("dataset"));
        model->dependent = Text(told.at("dependent"));
        model->independent = Texts(told, "independent");
    }
    return model;
}

json ParseManifest(std::string const& text)
{
    auto manifest = json::parse(text, nullptr, false);
    if (manifest.is_discarded() || !manifest.is_object() || manifest.value("format", json()) != FORMAT)
        throw Damage("its manifest is not that of a workspace");
    auto const version = manifest.value("version", json());
    if (!version.is_number_unsigned())
        throw Damage("its manifest names no version");
    if (version != VERSION)
        throw Damage("it is of version " + version.dump() + ", and only version "
                     + std::to_string(VERSION) + " is known here");
    return CheckedKeys(manifest, {"format", "version", "datasets", "matrices", "models"});
}

Workspace ReadWorkspace(Archive& archive)
{
    auto const manifest = ParseManifest(archive.ReadText(MANIFEST));
    Workspace workspace;
    std::set<std::string> names;
    auto const each = [&](char const* kind, auto const& read)
    {
        for (auto const& entry : ArrayAt(manifest, kind))
        {
            auto object = read(entry, archive);
            auto const name = Text(entry.at("name"));
            if (!names.insert(name).second)
                throw Damage("its manifest has one name for two objects");
            workspace.Assign(name, object);
        }
    };
    each("datasets", ReadDataset);
    each("matrices", ReadMatrix);
    each("models", ReadModel);
    ReadStructures(ArrayAt(manifest, "datasets"), workspace);
    if (!archive.Exhausted())
        throw Damage("it holds entries of which its manifest does not tell");
    return workspace;
}
} // namespace

void SaveWorkspace(Workspace const& workspace, std::string const& path, Progress& progress)
{
    ProgressScope scope(progress, "Saving the workspace");
    auto const names = workspace.Names();
    auto const twice = std::adjacent_find(names.begin(), names.end());
    if (twice != names.end())
        throw Error("two objects are called " + Quoted(*twice) + ": the workspace cannot be saved");

    Contents contents;
    json datasets = json::array();
    for (auto const& [name, dataset] : workspace.datasets)
    {
        auto const file = contents.Add(EntryName("datasets", datasets.size()), dataset->data);
        datasets.push_back(DescribeDataset(name, *dataset, workspace.StructureOf(name), file));
    }

    json matrices = json::array();
    for (auto const& [name, matrix] : workspace.matrices)
    {
        auto const file = contents.Add(EntryName("matrices", matrices.size()), *matrix);
        matrices.push_back({{"name", Checked(name, "a matrix")}, {"file", file}});
    }

    json models = json::array();
    for (auto const& [name, model] : workspace.models)
        models.push_back(DescribeModel(name, *model, models.size(), contents));

    json const manifest = {{"format", FORMAT},
                           {"version", VERSION},
                           {"datasets", datasets},
                           {"matrices", matrices},
                           {"models", models}};
    contents.Add(MANIFEST, manifest.dump(1) + "\n");

    Target target(path, scope, contents.Bytes());
    contents.WriteTo(target);
    target.Commit();
}

Workspace LoadWorkspace(std::string const& path, Progress& progress)
{
    ProgressScope scope(progress, "Loading the workspace");
    InputFile const file(path);
    try
    {
        Archive archive(file, scope);
        return ReadWorkspace(archive);
    }
    catch (Damage const& damage)
    {
        throw Error(Quoted(path) + " is not a workspace file, or it is damaged: " + damage.what());
    }
}
} // namespace workbench
