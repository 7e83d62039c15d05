#include <catch2/catch.hpp>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <limits>
#include <random>

#include <fcntl.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zip.h>

#include "workbench/Child.h"
#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/NumpyArray.h"
#include "workbench/engine/Workspace.h"
#include "workbench/engine/WorkspaceFile.h"

namespace fs = std::filesystem;

using workbench::LoadWorkspace;
using workbench::SaveWorkspace;
using workbench::Workspace;

namespace
{
using Texts = std::vector<std::string>;

double FromBits(std::uint64_t bits)
{
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Equal to the last bit, signs and payloads of NaN included.
bool Same(Eigen::MatrixXd const& a, Eigen::MatrixXd const& b)
{
    return a.rows() == b.rows() && a.cols() == b.cols()
           && (a.size() == 0
               || std::memcmp(a.data(), b.data(), static_cast<std::size_t>(a.size()) * sizeof(double))
                      == 0);
}

bool Same(LabelledColumn const& a, LabelledColumn const& b)
{
    return a.levels == b.levels && a.labels == b.labels;
}

template <class Map, class Equal>
bool SameMaps(Map const& a, Map const& b, Equal const& equal)
{
    return a.size() == b.size()
           && std::equal(a.begin(), a.end(), b.begin(),
                         [&](auto const& x, auto const& y)
                         { return x.first == y.first && equal(x.second, y.second); });
}

bool Same(Workspace const& a, Workspace const& b)
{
    auto const matrices = [](auto const& x, auto const& y) { return Same(x, y); };
    return SameMaps(a.datasets, b.datasets,
                    [](auto const& x, auto const& y)
                    {
                        return x->name == y->name && x->varNames == y->varNames && Same(x->data, y->data)
                               && SameMaps(x->labelledColumns, y->labelledColumns,
                                           [](auto const& p, auto const& q) { return Same(p, q); });
                    })
           && SameMaps(a.matrices, b.matrices, [](auto const& x, auto const& y) { return Same(*x, *y); })
           && SameMaps(a.models, b.models,
                       [&](auto const& x, auto const& y)
                       {
                           return x->drawNames == y->drawNames && Same(x->draws, y->draws)
                                  && x->chains == y->chains && x->type == y->type
                                  && x->dataset == y->dataset && x->dependent == y->dependent
                                  && x->independent == y->independent
                                  && SameMaps(x->results, y->results, matrices);
                       })
           && a.structures == b.structures;
}

void AddMatrix(Workspace& workspace, std::string const& name, Eigen::MatrixXd const& matrix)
{
    workspace.Assign(name, std::make_shared<Eigen::MatrixXd>(matrix));
}

/// Something of every kind.
Workspace Example()
{
    Workspace workspace;
    auto const wages = workbench::MakeDataset({"wage", "person"}, 3);
    wages->data.rightCols(2) << 10.5, 0, FromBits(0x7FF8000000000000), 1, -0.0,
        FromBits(0xFFF8000000000123);
    wages->labelledColumns[2] = {{"ann \"q\"\n", "\xC3\xA9\xF0\x9F\x98\x80"},
                                 {"ann \"q\"\n", "\xC3\xA9\xF0\x9F\x98\x80", ""}};
    workspace.Assign("wages", wages);
    auto const panel = workbench::MakeDataset({"\xC3\xA4ra", "firm"}, 2);
    panel->data.rightCols(2) << 0, 7, 1, 7;
    panel->labelledColumns[1] = {{"2001q1", "2001q2"}, {"2001q1", "2001q2"}};
    workspace.Assign("panel", panel);
    workspace.SetStructure("panel", {"\xC3\xA4ra", "yyyyqx", "firm"});

    Eigen::MatrixXd special(2, 3);
    special << std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::denorm_min(), FromBits(0x7FF0000000000001),
        FromBits(0xFFFFFFFFFFFFFFFF), 1.0 / 3.0;
    AddMatrix(workspace, "special", special);
    AddMatrix(workspace, "nothing", Eigen::MatrixXd(0, 0));
    AddMatrix(workspace, "rowless", Eigen::MatrixXd(0, 3));
    AddMatrix(workspace, "columnless", Eigen::MatrixXd(3, 0));

    auto const model = std::make_shared<Model>();
    model->drawNames = {"beta[1]", "sigma", ""};
    model->results["logML"] = Eigen::MatrixXd::Constant(1, 1, -123.456);
    model->results["draws, all"] = Eigen::MatrixXd::Random(5, 3);
    workspace.Assign("ols", model);
    workspace.Assign("bare", std::make_shared<Model>());
    auto const drawn = std::make_shared<Model>(*model);
    drawn->draws = Eigen::MatrixXd::Random(6, 3);
    drawn->draws(2, 1) = FromBits(0x7FF0000000000001);
    drawn->chains = 2;
    drawn->type = "linear regression";
    drawn->dataset = "w\xC3\xA4ges";
    drawn->dependent = "wage";
    drawn->independent = {"constant", "educ"};
    workspace.Assign("drawn", drawn);
    auto const told = std::make_shared<Model>();
    told->dependent = "wage";
    workspace.Assign("told", told);
    return workspace;
}

/// One of two workspaces that are easily told apart.
Workspace Numbered(double number, Eigen::Index rows = 4000)
{
    Workspace workspace;
    auto const dataset = workbench::MakeDataset({"a", "b"}, rows);
    dataset->data.rightCols(2).setConstant(number);
    workspace.Assign("d", dataset);
    AddMatrix(workspace, "m", Eigen::MatrixXd::Constant(3, 3, number));
    return workspace;
}

Workspace Load(std::string const& path)
{
    workbench::Progress progress;
    return LoadWorkspace(path, progress);
}

void Save(Workspace const& workspace, std::string const& path)
{
    workbench::Progress progress;
    SaveWorkspace(workspace, path, progress);
}

std::string SaveFailure(Workspace const& workspace, std::string const& path)
{
    return ErrorOf([&] { Save(workspace, path); });
}

/// The message of the error that loading gives, from behind the path; it must be about the path.
std::string LoadFailure(std::string const& path)
{
    auto const message = ErrorOf([&] { Load(path); });
    auto const quoted = "\"" + path + "\"";
    return message.compare(0, quoted.size(), quoted) == 0 ? message.substr(quoted.size()) : message;
}

std::string const DAMAGED = " is not a workspace file, or it is damaged: ";

/// Entries of an archive by name.
using Entries = std::vector<std::pair<std::string, std::string>>;

/// Writes an archive as another program might.
std::string Forge(std::string const& path, Entries const& entries, int method = ZIP_CM_STORE)
{
    fs::remove(path);
    int error = 0;
    zip_t* const archive = zip_open(path.c_str(), ZIP_CREATE, &error);
    REQUIRE(archive);
    for (auto const& [name, content] : entries)
    {
        auto* const source = zip_source_buffer(archive, content.data(), content.size(), 0);
        auto const index = zip_file_add(archive, name.c_str(), source, 0);
        REQUIRE(index >= 0);
        REQUIRE(zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), method, 0) == 0);
    }
    REQUIRE(zip_close(archive) == 0);
    return path;
}

std::string Manifest(std::string const& matrices, std::string const& datasets = "",
                     std::string const& version = "1", std::string const& models = "")
{
    return "{\"format\": \"Zenqo workspace\", \"version\": " + version + ", \"datasets\": [" + datasets
           + "], \"matrices\": [" + matrices + "], \"models\": [" + models + "]}";
}

std::string Array(Eigen::Index rows, Eigen::Index cols, std::string const& values,
                  bool columnMajor = true)
{
    return workbench::WriteNumpyHead({rows, cols, columnMajor}) + values;
}

std::string Bytes(std::initializer_list<double> values)
{
    return std::string(reinterpret_cast<char const*>(values.begin()), values.size() * sizeof(double));
}
} // namespace

TEST_CASE("a workspace comes back the same to the last bit")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    for (auto const& workspace : {Example(), Workspace(), Numbered(7)})
    {
        Save(workspace, path);
        CHECK(Same(Load(path), workspace));
        CHECK(scratch.CountFiles() == 1);
    }
}

TEST_CASE("equal workspaces make equal files")
{
    Scratch const scratch;
    Save(Example(), scratch.Path("a.zws"));
    auto example = Load(scratch.Path("a.zws"));
    example.models["ols"]->results["draws, all"] = Eigen::MatrixXd::Zero(5, 3);
    Save(example, scratch.Path("a.zws"));
    Save(Load(scratch.Path("a.zws")), scratch.Path("b.zws"));
    CHECK(ReadFile(scratch.Path("a.zws")) == ReadFile(scratch.Path("b.zws")));
}

TEST_CASE("a thousand datasets come back")
{
    Workspace workspace;
    for (int i = 0; i < 1000; ++i)
    {
        auto const dataset = workbench::MakeDataset({"a", "b"}, 1 + i % 7);
        dataset->data.rightCols(2).setConstant(i);
        workspace.Assign("d" + std::to_string(i), dataset);
    }
    Scratch const scratch;
    Save(workspace, scratch.Path("w.zws"));
    CHECK(Same(Load(scratch.Path("w.zws")), workspace));
}

TEST_CASE("random workspaces with hostile texts come back")
{
    std::uint32_t const seed = GENERATE(1u, 2u, 3u, 4u);
    CAPTURE(seed);
    std::mt19937_64 random(seed);
    char const* const pieces[] = {
        "\"", "\\", "/",    "\n",   "\r", "\t", "..",           "\xC3\xA9",    "\xF0\x9F\x98\x80",
        "a",  "7",  "\x01", "\x7F", "{",  "]",  "\xEF\xBF\xBD", "\xE2\x80\xA8"};
    auto const text = [&]
    {
        std::string result;
        for (auto n = random() % 6; n > 0; --n)
            result += pieces[random() % std::size(pieces)];
        if (random() % 10 == 0)
            result += '\0';
        return result;
    };
    auto const texts = [&](std::size_t most)
    {
        Texts result(random() % (most + 1));
        std::generate(result.begin(), result.end(), text);
        return result;
    };
    auto const matrix = [&](Eigen::Index rows, Eigen::Index cols)
    {
        return Eigen::MatrixXd(
            Eigen::MatrixXd::NullaryExpr(rows, cols, [&] { return FromBits(random()); }));
    };

    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    for (int round = 0; round < 25; ++round)
    {
        Workspace workspace;
        for (auto n = random() % 4; n > 0; --n)
        {
            auto const rows = static_cast<Eigen::Index>(random() % 9);
            auto dataset = std::make_shared<Dataset>();
            dataset->data = matrix(rows, static_cast<Eigen::Index>(1 + random() % 4));
            for (Eigen::Index j = 0; j < dataset->data.cols(); ++j)
                dataset->varNames.Add(wxString::FromUTF8(text()));
            dataset->labelledColumns[0] = {texts(5), texts(static_cast<std::size_t>(rows))};
            workspace.Assign(text(), dataset);
        }
        for (auto n = random() % 4; n > 0; --n)
            AddMatrix(workspace, text(),
                      matrix(static_cast<Eigen::Index>(random() % 5),
                             static_cast<Eigen::Index>(random() % 5)));
        for (auto n = random() % 3; n > 0; --n)
        {
            auto const model = std::make_shared<Model>();
            model->drawNames = texts(5);
            for (auto m = random() % 4; m > 0; --m)
                model->results[text()] = matrix(2, 2);
            if (!model->drawNames.empty() && random() % 2 == 0)
            {
                model->chains = static_cast<int>(1 + random() % 3);
                model->draws = matrix(2 * model->chains, static_cast<Eigen::Index>(model->drawNames.size()));
            }
            model->type = text();
            model->dataset = text();
            model->dependent = text();
            model->independent = texts(3);
            workspace.Assign(text(), model);
        }
        Save(workspace, path);
        REQUIRE(Same(Load(path), workspace));
    }
}

TEST_CASE("a matrix stands in the file as the array format tells")
{
    CHECK(workbench::WriteNumpyHead({2, 3, true})
          == std::string("\x93NUMPY\x01\x00\x76\x00", 10)
                 + "{'descr': '<f8', 'fortran_order': True, 'shape': (2, 3), }" + std::string(59, ' ')
                 + "\n");
    CHECK(workbench::WriteNumpyHead({2, 3, true}).size() == 128);
    CHECK(workbench::WriteNumpyHead({2000000000, 2000000000, false}).size() == 128);
}

TEST_CASE("arrays that another program stored by rows are read right")
{
    Scratch const scratch;
    auto const path = Forge(scratch.Path("w.zws"),
                            {{"m.npy", Array(2, 2, Bytes({1, 2, 3, 4}), false)},
                             {"workspace.json", Manifest("{\"name\": \"m\", \"file\": \"m.npy\"}")}});
    Eigen::MatrixXd expected(2, 2);
    expected << 1, 2, 3, 4;
    CHECK(*Load(path).matrices["m"] == expected);
}

TEST_CASE("a file that is no workspace is one clear error")
{
    Scratch const scratch;
    CHECK(LoadFailure("") == "the path of the file to read is empty");
    CHECK(LoadFailure(scratch.Path("none.zws")) == " cannot be read: No such file or directory");
    CHECK(LoadFailure(scratch.Folder()) == " cannot be read: it is a folder");
    CHECK(LoadFailure(scratch.Write("text.zws", "a,b\n1,2\n")) == DAMAGED + "Not a zip archive");
    CHECK(LoadFailure(scratch.Write("empty.zws", "")) == DAMAGED + "Not a zip archive");

    auto const path = scratch.Path("forged.zws");
    auto const matrix = Array(1, 1, Bytes({1}));
    std::string const entry = "{\"name\": \"m\", \"file\": \"m.npy\"}";
    auto const forged = [&](Entries const& entries) { return LoadFailure(Forge(path, entries)); };
    auto const withManifest = [&](std::string const& manifest) {
        return forged({{"m.npy", matrix}, {"workspace.json", manifest}});
    };

    CHECK(forged({{"other", "x"}}) == DAMAGED + "it lacks the entry \"workspace.json\"");
    CHECK(withManifest("") == DAMAGED + "its manifest is not that of a workspace");
    CHECK(withManifest("[1]") == DAMAGED + "its manifest is not that of a workspace");
    CHECK(withManifest("{\"format\": \"other\"}")
          == DAMAGED + "its manifest is not that of a workspace");
    CHECK(withManifest("{\"format\": \"Zenqo workspace\"}")
          == DAMAGED + "its manifest names no version");
    CHECK(withManifest(Manifest(entry, "", "2"))
          == DAMAGED + "it is of version 2, and only version 1 is known here");
    CHECK(withManifest(Manifest(entry + ", {}")) == DAMAGED + "its manifest is malformed");
    CHECK(withManifest(Manifest("{\"name\": \"m\", \"other\": \"m.npy\"}"))
          == DAMAGED + "its manifest lacks \"file\"");
    CHECK(withManifest(Manifest("{\"name\": \"m\", \"file\": 1}"))
          == DAMAGED + "its manifest has no text where one is expected");
    CHECK(withManifest(Manifest("{\"name\": \"m\", \"file\": \"n.npy\"}"))
          == DAMAGED + "it lacks the entry \"n.npy\"");
    CHECK(withManifest(Manifest(""))
          == DAMAGED + "it holds entries of which its manifest does not tell");
    CHECK(withManifest(Manifest(entry + "," + entry))
          == DAMAGED + "the entry \"m.npy\" is named twice in its manifest");
    CHECK(forged({{"m.npy", matrix},
                  {"n.npy", matrix},
                  {"workspace.json", Manifest(entry + ", {\"name\": \"m\", \"file\": \"n.npy\"}")}})
          == DAMAGED + "its manifest has one name for two objects");

    auto const dataset = [&](std::string const& variables, std::string const& text)
    {
        return withManifest(Manifest("", "{\"name\": \"d\", \"file\": \"m.npy\", \"variables\": ["
                                             + variables + "], \"text\": [" + text + "]}"));
    };
    auto const structured = [&](std::string const& structure)
    {
        return forged({{"d.npy", Array(2, 2, Bytes({1, 1, 2001, 2002.5}))},
                       {"workspace.json",
                        Manifest("", "{\"name\": \"d\", \"file\": \"d.npy\", \"variables\": [\"c\", "
                                     "\"year\"], \"text\": [], \"structure\": "
                                         + structure + "}")}});
    };
    CHECK(structured("null") == DAMAGED + "its manifest is malformed");
    CHECK(structured("{\"time\": \"year\", \"format\": \"index\"}") == DAMAGED + "its manifest is malformed");
    CHECK(structured("{\"time\": \"year\", \"format\": \"index\", \"group\": 1}")
          == DAMAGED + "its manifest has no text where one is expected");
    CHECK(structured("{\"time\": \"\", \"format\": \"\", \"group\": \"firm\"}")
          == DAMAGED + "the structure of the dataset \"d\": the dataset has no variable \"firm\"");
    CHECK(structured("{\"time\": \"year\", \"format\": \"index\", \"group\": \"\"}")
          == DAMAGED + "the structure of the dataset \"d\": the variable \"year\" does not fit the time format "
                       "\"index\": row 2 has 2002.5");
    CHECK(dataset("\"a\", \"b\"", "")
          == DAMAGED + "its manifest has not as many variable names as there are columns");
    std::string const column = "{\"column\": 0, \"levels\": [], \"labels\": []}";
    CHECK(dataset("\"a\"", column + "," + column)
          == DAMAGED + "its manifest has text twice for one column");
    CHECK(dataset("\"a\"", "{\"column\": 1, \"levels\": [], \"labels\": []}")
          == DAMAGED + "its manifest tells of text in a column that is not there");
    CHECK(dataset("\"a\"", "{\"column\": -1, \"levels\": [], \"labels\": []}")
          == DAMAGED + "its manifest tells of text in a column that is not there");
    CHECK(dataset("\"a\"", "{\"column\": 0, \"levels\": [], \"labels\": [\"a\", \"b\"]}")
          == DAMAGED + "its manifest has more labels than there are observations");
    CHECK(dataset("\"a\"", column) == "(no error)");
}

TEST_CASE("models of files from before there were draws load, and bad draws are refused")
{
    Scratch const scratch;
    auto const path = scratch.Path("forged.zws");
    auto const forge = [&](std::string const& keys)
    {
        return Forge(path,
                     {{"d.npy", Array(4, 2, Bytes({1, 2, 3, 4, 5, 6, 7, 8}))},
                      {"workspace.json", Manifest("", "", "1",
                                                  "{\"name\": \"m\", \"drawNames\": [\"beta\", \"tau\"], "
                                                  "\"results\": []"
                                                      + keys + "}")}});
    };
    auto const old = Forge(path, {{"workspace.json",
                                   Manifest("", "", "1", "{\"name\": \"m\", \"drawNames\": [\"beta\"], "
                                                         "\"results\": []}")}});
    auto const model = Load(old).models.at("m");
    CHECK(model->drawNames == Texts{"beta"});
    CHECK(model->draws.size() == 0);
    CHECK(model->chains == 0);
    CHECK(model->type.empty());

    auto const draws = [](std::string const& chains)
    { return ", \"draws\": {\"file\": \"d.npy\", \"chains\": " + chains + "}"; };
    auto const drawn = Load(forge(draws("2"))).models.at("m");
    CHECK(drawn->chains == 2);
    CHECK(drawn->draws(3, 1) == 8);

    auto const misfit = DAMAGED + "it has draws that do not fit their names or chains";
    auto const noNumber = DAMAGED + "its manifest tells of no number of chains where it should";
    CHECK(LoadFailure(forge(draws("3"))) == misfit);
    CHECK(LoadFailure(forge(draws("0"))) == misfit);
    CHECK(LoadFailure(forge(draws("-1"))) == noNumber);
    CHECK(LoadFailure(forge(draws("1.5"))) == noNumber);
    CHECK(LoadFailure(forge(draws("\"2\""))) == noNumber);
    CHECK(LoadFailure(forge(draws("3000000000"))) == noNumber);
    CHECK(LoadFailure(forge(", \"draws\": {\"file\": \"d.npy\"}")) == DAMAGED + "its manifest is malformed");
    CHECK(LoadFailure(forge(", \"draws\": null")) == DAMAGED + "its manifest is malformed");
    CHECK(LoadFailure(forge("")) == DAMAGED + "it holds entries of which its manifest does not tell");
    CHECK(LoadFailure(forge(draws("2") + ", \"estimation\": {}")) == DAMAGED + "its manifest is malformed");
    CHECK(LoadFailure(forge(draws("2")
                            + ", \"estimation\": {\"type\": 1, \"dataset\": \"\", \"dependent\": \"\", "
                              "\"independent\": []}"))
          == DAMAGED + "its manifest has no text where one is expected");
    CHECK(LoadFailure(forge(draws("2")
                            + ", \"estimation\": {\"type\": \"\", \"dataset\": \"\", \"dependent\": \"\", "
                              "\"independent\": \"\"}"))
          == DAMAGED + "its manifest has no list \"independent\"");
    CHECK(LoadFailure(forge(draws("2") + ", \"other\": 1")) == DAMAGED + "its manifest is malformed");
    CHECK(LoadFailure(Forge(path, {{"d.npy", Array(0, 1, "")},
                                   {"workspace.json",
                                    Manifest("", "", "1", "{\"name\": \"m\", \"drawNames\": [\"a\"], "
                                                          "\"results\": []"
                                                              + draws("1") + "}")}}))
          == misfit);
}

TEST_CASE("a model without draws makes the same file as before there were any")
{
    Scratch const scratch;
    Workspace workspace;
    auto const model = std::make_shared<Model>();
    model->drawNames = {"beta"};
    workspace.Assign("m", model);
    Save(workspace, scratch.Path("w.zws"));
    auto const bytes = ReadFile(scratch.Path("w.zws"));
    CHECK(bytes.find("\"draws\"") == std::string::npos);
    CHECK(bytes.find("\"estimation\"") == std::string::npos);
}

TEST_CASE("an array that claims more than it holds is refused before memory is asked for")
{
    Scratch const scratch;
    auto const path = scratch.Path("forged.zws");
    auto const forged = [&](std::string const& array, int method = ZIP_CM_STORE)
    {
        return LoadFailure(Forge(
            path,
            {{"m.npy", array}, {"workspace.json", Manifest("{\"name\": \"m\", \"file\": \"m.npy\"}")}},
            method));
    };
    auto const noArray = DAMAGED + "the entry \"m.npy\" is not an array of numbers in two dimensions";
    CHECK(forged(Array(1, 1, Bytes({1}))) == "(no error)");
    CHECK(forged(Array(2000000000, 2000000000, Bytes({1}))) == noArray);
    CHECK(forged(Array(2147483648, 0, "")) == noArray);
    CHECK(forged(Array(-1, -1, Bytes({1}))) == noArray);
    CHECK(forged(Array(1, 2, Bytes({1}))) == noArray);
    CHECK(forged(Array(1, 1, Bytes({1, 2}))) == noArray);
    CHECK(forged("") == noArray);
    CHECK(forged("\x93NUMPY") == noArray);
    CHECK(forged(std::string("\x93NUMPY\x01\x00\xFF\xFF", 10)) == noArray);
    auto array = Array(1, 1, Bytes({1}));
    CHECK(forged(array.replace(array.find("<f8"), 3, ">f8")) == noArray);
    array = Array(1, 1, Bytes({1}));
    CHECK(forged(array.replace(array.find("True"), 4, "Thue")) == noArray);
    array = Array(1, 1, Bytes({1}));
    CHECK(forged(array.replace(array.find("   "), 1, "x")) == noArray);
    CHECK(forged(Array(100, 100, std::string(80000, '\0')), ZIP_CM_DEFLATE)
          == DAMAGED + "the entry \"workspace.json\" is not stored as it should be");
}

TEST_CASE("a file with any byte changed is refused, or loads the same")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    Save(Example(), path);
    auto const original = Load(path);
    auto const whole = ReadFile(path);
    auto const broken = scratch.Path("broken.zws");
    int refused = 0;
    for (std::size_t i = 0; i < whole.size(); ++i)
    {
        int const mask = std::array{0x01, 0x80, 0xFF}[i % 3];
        auto bytes = whole;
        bytes[i] = static_cast<char>(bytes[i] ^ mask);
        scratch.Write("broken.zws", bytes);
        try
        {
            if (!Same(Load(broken), original))
                FAIL("changed by byte " << i << " with mask " << mask);
        }
        catch (workbench::Error const&)
        {
            ++refused;
        }
    }
    // All but the fields that say nothing here: dates, versions, attributes.
    CHECK(refused > static_cast<int>(whole.size() * 9 / 10));
}

TEST_CASE("a file cut off anywhere is refused")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    Save(Example(), path);
    auto const whole = ReadFile(path);
    for (std::size_t size = 0; size < whole.size(); ++size)
        if (LoadFailure(scratch.Write("cut.zws", whole.substr(0, size)))
                .compare(0, DAMAGED.size(), DAMAGED)
            != 0)
            FAIL("cut to " << size << " bytes");
    CHECK(LoadFailure(scratch.Write("long.zws", whole + "x")).compare(0, DAMAGED.size(), DAMAGED) == 0);
}

TEST_CASE("what a file could not bring back is not saved")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    Workspace workspace = Numbered(1, 2);
    workspace.datasets["d"]->varNames.Add("third");
    workspace.datasets["d"]->varNames.Add("fourth");
    CHECK(SaveFailure(workspace, path)
          == "dataset \"d\" has 5 variable names and 3 columns: it cannot be saved");

    workspace = Numbered(1, 2);
    workspace.datasets["d"]->labelledColumns[3] = {};
    CHECK(SaveFailure(workspace, path)
          == "dataset \"d\" has text that fits none of its columns: it cannot be saved");
    workspace = Numbered(1, 2);
    workspace.datasets["d"]->labelledColumns[1] = {{}, {"a", "b", "c"}};
    CHECK(SaveFailure(workspace, path)
          == "dataset \"d\" has text that fits none of its columns: it cannot be saved");
    workspace.datasets["d"]->labelledColumns[1] = {{}, {"gr\xFC\xDF"}};
    CHECK(SaveFailure(workspace, path)
          == "dataset \"d\" holds a text that is not UTF-8, which a workspace file cannot keep");

    auto const model = std::make_shared<Model>();
    model->drawNames = {"beta"};
    model->draws = Eigen::MatrixXd::Zero(3, 1);
    auto const misfit = "model \"b\" has draws that do not fit its names or chains: it cannot be saved";
    workspace = Workspace();
    workspace.Assign("b", model);
    for (int const chains : {0, 2, -1})
    {
        model->chains = chains;
        CHECK(SaveFailure(workspace, path) == misfit);
    }
    model->chains = 3;
    model->drawNames = {"beta", "tau"};
    CHECK(SaveFailure(workspace, path) == misfit);
    model->draws.resize(0, 0);
    CHECK(SaveFailure(workspace, path) == misfit);
    model->chains = 0;
    model->independent = {"gr\xFC\xDF"};
    CHECK(SaveFailure(workspace, path)
          == "model \"b\" holds a text that is not UTF-8, which a workspace file cannot keep");

    workspace = Numbered(1, 2);
    workspace.matrices["d"] = workspace.matrices["m"];
    CHECK(SaveFailure(workspace, path) == "two objects are called \"d\": the workspace cannot be saved");
    CHECK(scratch.CountFiles() == 0);
}

TEST_CASE("a save that fails leaves the old file and nothing beside it")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    Save(Numbered(1), path);
    auto const before = ReadFile(path);

    CHECK(SaveFailure(Numbered(2), scratch.Folder())
          == "\"" + scratch.Folder() + "\" cannot be written: it is a folder");
    CHECK(SaveFailure(Numbered(2), scratch.Path("none/w.zws"))
          == "\"" + scratch.Path("none/w.zws") + "\" cannot be written: No such file or directory");
    CHECK(SaveFailure(Numbered(2), "/dev/full")
          == "\"/dev/full\" cannot be written: it is not an ordinary file");
    auto const longName = scratch.Path(std::string(300, 'n'));
    CHECK(SaveFailure(Numbered(2), longName)
          == "\"" + longName + "\" cannot be written: File name too long");

    auto const cut = InChild(
        [&]
        {
            std::signal(SIGXFSZ, SIG_IGN);
            rlimit const limit{4096, 4096};
            setrlimit(RLIMIT_FSIZE, &limit);
            return SaveFailure(Numbered(2), path);
        });
    CHECK(cut == "\"" + path + "\" cannot be written: File too large");
    CHECK(ReadFile(path) == before);
    CHECK(scratch.CountFiles() == 1);
}

TEST_CASE("a full disk is one clear error and keeps the old file")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    auto const result = InChild(
        [&]() -> std::string
        {
            // A disk of its own, seen by this process alone.
            if (unshare(CLONE_NEWNS) != 0
                || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
                || mount("tmpfs", scratch.Folder().c_str(), "tmpfs", 0, "size=128k") != 0)
                return "no disk";
            Save(Numbered(1, 100), path);
            auto const message = SaveFailure(Numbered(2, 100000), path);
            bool const kept = Same(Load(path), Numbered(1, 100)) && scratch.CountFiles() == 1;
            return message + (kept ? "" : ", and the old file is gone");
        });
    if (result == "no disk")
        WARN("this process may not mount a disk: not tested");
    else
        CHECK(result == "\"" + path + "\" cannot be written: No space left on device");
}

TEST_CASE("who may not write is told so")
{
    if (geteuid() != 0)
    {
        WARN("only root can become another user: not tested");
        return;
    }
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    Save(Numbered(1), path);
    auto const asNobody = [&](std::function<std::string()> const& action)
    {
        return InChild(
            [&]() -> std::string
            {
                if (setgid(65534) != 0 || setuid(65534) != 0)
                    return "(still root)";
                return action();
            });
    };
    std::string const denied = "\" cannot be written: Permission denied";
    // A folder that cannot be written to, a file that cannot, and one that cannot be read.
    REQUIRE(chmod(scratch.Folder().c_str(), 0755) == 0);
    CHECK(asNobody([&] { return SaveFailure(Numbered(2), scratch.Path("new.zws")); })
          == "\"" + scratch.Path("new.zws") + denied);
    REQUIRE(chmod(scratch.Folder().c_str(), 0777) == 0);
    REQUIRE(chmod(path.c_str(), 0444) == 0);
    CHECK(asNobody([&] { return SaveFailure(Numbered(2), path); }) == "\"" + path + denied);
    REQUIRE(chmod(path.c_str(), 0600) == 0);
    CHECK(asNobody([&] { return LoadFailure(path); }) == " cannot be read: Permission denied");
    CHECK(Same(Load(path), Numbered(1)));
    CHECK(scratch.CountFiles() == 1);
}

TEST_CASE("a symbolic link stays one, and leads to the new file")
{
    Scratch const scratch;
    fs::create_directory(scratch.Path("elsewhere"));
    auto const target = scratch.Path("elsewhere/real.zws");
    auto const link = scratch.Path("w.zws");
    fs::create_symlink("elsewhere/real.zws", link);
    // The link leads to no file yet.
    Save(Numbered(1), link);
    CHECK(fs::is_symlink(link));
    CHECK(Same(Load(target), Numbered(1)));
    Save(Numbered(2), link);
    CHECK(fs::is_symlink(link));
    CHECK(Same(Load(target), Numbered(2)));
    CHECK(scratch.CountFiles() == 2);

    auto const loop = scratch.Path("loop.zws");
    fs::create_symlink("loop.zws", loop);
    CHECK(SaveFailure(Numbered(1), loop)
          == "\"" + loop + "\" cannot be written: Too many levels of symbolic links");
}

TEST_CASE("a file keeps its permissions, and a new one gets the usual ones")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    auto const mode = [&]
    {
        struct stat status;
        REQUIRE(stat(path.c_str(), &status) == 0);
        return status.st_mode & 07777;
    };
    auto const mask = umask(0);
    umask(mask);
    Save(Numbered(1), path);
    CHECK(mode() == (0666 & ~mask));
    REQUIRE(chmod(path.c_str(), 0640) == 0);
    Save(Numbered(2), path);
    CHECK(mode() == 0640);
}

TEST_CASE("what a killed process left is cleared away, and a writer at work is left alone")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    scratch.Write(".w.zws.saving-a1B2c3", "half a workspace");
    auto const busy = scratch.Write(".w.zws.saving-busy00", "being written");
    scratch.Write(".other.zws.saving-a1B2c3", "not ours");
    int const descriptor = open(busy.c_str(), O_RDONLY);
    REQUIRE(flock(descriptor, LOCK_EX) == 0);
    Save(Numbered(1), path);
    CHECK(scratch.CountFiles() == 3);
    CHECK(fs::exists(busy));
    CHECK_FALSE(fs::exists(scratch.Path(".w.zws.saving-a1B2c3")));
    close(descriptor);
}

TEST_CASE("a process killed while it saves leaves the old file or the new one, whole")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    auto const first = Numbered(1);
    auto const second = Numbered(2);
    Save(first, path);
    std::mt19937 random(5);
    int firsts = 0;
    int seconds = 0;
    int leftovers = 0;
    constexpr int KILLS = 120;
    for (int i = 0; i < KILLS; ++i)
    {
        pid_t const child = StartChild(
            [&]
            {
                for (;;)
                {
                    Save(second, path);
                    Save(first, path);
                }
            });
        usleep(static_cast<useconds_t>(1000 + random() % 15000));
        REQUIRE(kill(child, SIGKILL) == 0);
        int status = 0;
        REQUIRE(waitpid(child, &status, 0) == child);
        REQUIRE(WIFSIGNALED(status));

        auto const found = Load(path);
        bool const isFirst = Same(found, first);
        REQUIRE((isFirst || Same(found, second)));
        ++(isFirst ? firsts : seconds);
        leftovers += scratch.CountFiles() > 1;
    }
    CHECK(firsts + seconds == KILLS);
    // The test is worth something only if it hit the middle of a save, and of both.
    CHECK(firsts > 0);
    CHECK(seconds > 0);
    CHECK(leftovers > 0);
    Save(first, path);
    CHECK(scratch.CountFiles() == 1);
}

TEST_CASE("a large save and a large load report their progress, and stop when told")
{
    Scratch const scratch;
    auto const path = scratch.Path("w.zws");
    auto const workspace = Numbered(1, 100000);
    Meter saving;
    SaveWorkspace(workspace, path, saving);
    Meter loading;
    CHECK(Same(LoadWorkspace(path, loading), workspace));
    for (auto const* const meter : {&saving, &loading})
    {
        CHECK(meter->begun.size() == 1);
        CHECK(meter->ended == 1);
        CHECK(meter->fractions.size() >= 5);
        CHECK(meter->fractions.front() >= 0.0);
        CHECK(meter->fractions.front() < 0.5);
        CHECK(*std::max_element(meter->fractions.begin(), meter->fractions.end()) <= 1.0);
        CHECK(meter->fractions.back() > 0.9);
    }

    auto const before = ReadFile(path);
    for (int stopAt = 1; stopAt <= static_cast<int>(saving.fractions.size()); ++stopAt)
    {
        Meter meter;
        meter.stopAt = stopAt;
        CHECK_THROWS_AS(SaveWorkspace(Numbered(2, 100000), path, meter), workbench::Interrupted);
        CHECK(meter.ended == 1);
        CHECK(scratch.CountFiles() == 1);
    }
    CHECK(ReadFile(path) == before);
    for (int stopAt = 1; stopAt <= static_cast<int>(loading.fractions.size()); ++stopAt)
    {
        Meter meter;
        meter.stopAt = stopAt;
        CHECK_THROWS_AS(LoadWorkspace(path, meter), workbench::Interrupted);
        CHECK(meter.ended == 1);
    }
}
