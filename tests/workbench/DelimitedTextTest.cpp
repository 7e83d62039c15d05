#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>

#include <sys/stat.h>
#include <unistd.h>

#include "engine/Functions.h"
#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/DelimitedText.h"
#include "workbench/engine/Workspace.h"

using workbench::ExportDelimited;
using workbench::ImportDelimited;

namespace
{
using Texts = std::vector<std::string>;

double const MISSING = std::numeric_limits<double>::quiet_NaN();

/// Imports `text` as the content of a file.
workbench::Import Read(std::string const& text, char delimiter = ',')
{
    Scratch const scratch;
    workbench::Progress progress;
    return ImportDelimited(scratch.Write("t.csv", text), delimiter, progress);
}

/// The message of the error that importing `text` gives, from behind the path; it must be about the
/// path.
std::string Failure(std::string const& text, char delimiter = ',')
{
    Scratch const scratch;
    auto const path = scratch.Write("t.csv", text);
    workbench::Progress progress;
    auto const message = ErrorOf([&] { ImportDelimited(path, delimiter, progress); });
    auto const quoted = "\"" + path + "\"";
    return message.compare(0, quoted.size(), quoted) == 0 ? message.substr(quoted.size()) : message;
}

bool Same(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

bool Same(Eigen::MatrixXd const& a, Eigen::MatrixXd const& b)
{
    if (a.rows() != b.rows() || a.cols() != b.cols())
        return false;
    for (Eigen::Index i = 0; i < a.size(); ++i)
        if (!Same(a.data()[i], b.data()[i]))
            return false;
    return true;
}

Eigen::MatrixXd Rows(std::initializer_list<std::initializer_list<double>> rows)
{
    return Eigen::MatrixXd(rows);
}

/// The data without the hidden column.
Eigen::MatrixXd Values(workbench::Import const& import)
{
    auto const& data = import.dataset->data;
    return data.rightCols(data.cols() - 1);
}

Texts Names(workbench::Import const& import)
{
    Texts names;
    for (auto const& name : import.dataset->varNames)
        names.push_back(name.ToStdString(wxConvUTF8));
    return names;
}
} // namespace

TEST_CASE("a plain file becomes numbers, behind a column of ones")
{
    auto const import = Read("a,b\n1,2\n3,4\n");
    CHECK(Names(import) == Texts{"constant", "a", "b"});
    CHECK(import.dataset->data == Rows({{1, 1, 2}, {1, 3, 4}}));
    CHECK(import.dataset->labelledColumns.empty());
    CHECK(import.warning.empty());
}

TEST_CASE("line ends, a byte-order mark, blank lines and blanks around values make no difference")
{
    for (char const* const text : {"a,b\n1,2\n3,4", "a,b\r\n1,2\r\n3,4\r\n", "a,b\r1,2\r3,4\r",
                                   "\xEF\xBB\xBF"
                                   "a,b\n1,2\n3,4\n",
                                   "\n\na,b\n\n1,2\n  \n3,4\n\n", " a , b\t\n 1 ,\t2\n3,  4  \n",
                                   "\"a\",\"b\"\n\"1\",2\n3 , \"4\" \n"})
    {
        INFO(text);
        auto const import = Read(text);
        CHECK(Names(import) == Texts{"constant", "a", "b"});
        CHECK(Values(import) == Rows({{1, 2}, {3, 4}}));
        CHECK(import.warning.empty());
    }
}

TEST_CASE("delimiters of all kinds")
{
    for (char const delimiter : {',', ';', '\t', '|', ' ', ':'})
    {
        std::string text = "a,b,c\n1,,3\n";
        for (char& c : text)
            c = c == ',' ? delimiter : c;
        CAPTURE(static_cast<int>(delimiter));
        CHECK(Same(Values(Read(text, delimiter)), Rows({{1, MISSING, 3}})));
    }
    for (char const delimiter : {'"', '\n', '\r', '\0', '5', 'e', '.', '-', '+', '_', '\x01', '\xC3'})
    {
        CAPTURE(static_cast<int>(delimiter));
        workbench::Progress progress;
        CHECK(ErrorOf([&] { ImportDelimited("/dev/null", delimiter, progress); })
              == "the delimiter must be a comma, a semicolon, a tab or another character that stands in "
                 "no number "
                 "and no name");
    }
}

TEST_CASE("numbers are read exactly, in every notation")
{
    auto const import = Read(
        "x,y\n1e3,-2.5E-3\n+4,.5\n5.,0.1\ninf,-infinity\n1.7976931348623157e308,4.9e-324\n-0,007\n");
    auto const infinity = std::numeric_limits<double>::infinity();
    CHECK(Same(Values(import), Rows({{1000, -0.0025},
                                     {4, .5},
                                     {5, 0.1},
                                     {infinity, -infinity},
                                     {std::numeric_limits<double>::max(), 4.9e-324},
                                     {-0.0, 7}})));
    CHECK(import.dataset->labelledColumns.empty());
}

TEST_CASE("missing values are empty, a dot, NA or NaN")
{
    auto const import = Read("a,b\n1,\n.,NA\nNaN,nan\n,2\n");
    CHECK(Same(Values(import),
               Rows({{1, MISSING}, {MISSING, MISSING}, {MISSING, MISSING}, {MISSING, 2}})));
    CHECK(import.dataset->labelledColumns.empty());
}

TEST_CASE("a column with text in it keeps its texts as labels")
{
    auto const import = Read("person,age\nbob,1\nann,2\n,3\nbob,4\nNA,5\n");
    CHECK(Same(Values(import), Rows({{0, 1}, {1, 2}, {MISSING, 3}, {0, 4}, {MISSING, 5}})));
    REQUIRE(import.dataset->labelledColumns.size() == 1);
    auto const& column = import.dataset->labelledColumns.at(1);
    CHECK(column.levels == Texts{"bob", "ann"});
    CHECK(column.labels == Texts{"bob", "ann", "", "bob", ""});
}

TEST_CASE("a column that turns to text late keeps its numbers as they were written")
{
    auto const import = Read("n,code,x\n1,007,1\n2,.,2\n3,1e999,3\n4,A7,4\n5,007,5\n");
    REQUIRE(import.dataset->labelledColumns.size() == 1);
    auto const& column = import.dataset->labelledColumns.at(2);
    CHECK(column.labels == Texts{"007", "", "1e999", "A7", "007"});
    CHECK(column.levels == Texts{"007", "1e999", "A7"});
    CHECK(Same(import.dataset->data.col(2), (Eigen::VectorXd(5) << 0, MISSING, 1, 2, 0).finished()));
    CHECK(import.dataset->data.col(3) == (Eigen::VectorXd(5) << 1, 2, 3, 4, 5).finished());
}

TEST_CASE("what looks like a number and is none is text")
{
    for (char const* const text :
         {"1,5", "1 2", "0x10", "1e", "--1", "+-1", "1.2.3", "nan(7)", "$5", "12%"})
    {
        INFO(text);
        auto const import = Read(std::string("x;y\n1;2\n") + text + ";3\n", ';');
        CHECK(import.dataset->labelledColumns.count(1) == 1);
    }
}

TEST_CASE("quotes protect delimiters, quotes, line ends and blanks")
{
    auto const import =
        Read("t,n\n\"a,b\",1\n\"say \"\"hi\"\"\",2\n\"two\nlines\r\nor three\",3\n\"  x \",4\n");
    CHECK(import.dataset->labelledColumns.at(1).labels
          == Texts{"a,b", "say \"hi\"", "two\nlines\r\nor three", "  x "});
    CHECK(import.dataset->data.col(2) == (Eigen::VectorXd(4) << 1, 2, 3, 4).finished());
}

TEST_CASE("a quoted value is text, unless all names are quoted too")
{
    auto const text = Read("a,b\n\"1\",1\n\"NA\",2\n\"\",3\n");
    REQUIRE(text.dataset->labelledColumns.count(1) == 1);
    CHECK(text.dataset->labelledColumns.at(1).labels == Texts{"1", "NA", ""});

    auto const numbers = Read("\"a\",\"b\"\n\"1\",\"x\"\n\"NA\",\"y\"\n\"\",\"\"\n");
    CHECK(numbers.dataset->labelledColumns.count(1) == 0);
    CHECK(Same(numbers.dataset->data.col(1), Eigen::Vector3d(1, MISSING, MISSING)));
    CHECK(numbers.dataset->labelledColumns.at(2).labels == Texts{"x", "y", ""});
}

TEST_CASE("names are made legal and unique, and one warning tells")
{
    auto const import = Read("a b,a b,,x,x,constant,2nd,gr\xC3\xB6\xC3\x9F"
                             "e,\"q\"\"q\",ok,x_2,more more\n1,2,3,4,5,6,7,8,9,10,11,12\n");
    CHECK(Names(import)
          == Texts{"constant", "a_b", "a_b_2", "unnamed", "x", "x_2", "constant_2", "_2nd", "gr_e",
                   "q_q", "ok", "x_2_2", "more_more"});
    CHECK(import.warning.find(
              "were changed to make them legal and unique: \"a b\" to \"a_b\", \"a b\" to \"a_b_2\", "
              "\"\" to \"unnamed\", \"x\" to \"x_2\", \"constant\" to \"constant_2\", \"2nd\" to "
              "\"_2nd\", \"gr\xC3\xB6\xC3\x9F"
              "e\" to \"gr_e\", \"q\"q\" to \"q_q\", \"x_2\" to \"x_2_2\", \"more more\" to "
              "\"more_more\".")
          != std::string::npos);
}

TEST_CASE("a header of thousands of equal names is no trouble")
{
    std::string header = "x";
    std::string row = "1";
    for (int i = 1; i < 20000; ++i)
    {
        header += ",x";
        row += ",1";
    }
    auto const import = Read(header + "\n" + row + "\n");
    CHECK(import.dataset->varNames.GetCount() == 20001);
    CHECK(import.dataset->varNames[20000] == "x_20000");
    CHECK(import.warning.find("\"x\" to \"x_11\" and 19989 more.") != std::string::npos);
}

TEST_CASE("a file that is no table is one clear error")
{
    CHECK(Failure("") == " is empty: its first line must hold the names of variables");
    CHECK(Failure("\xEF\xBB\xBF") == " is empty: its first line must hold the names of variables");
    CHECK(Failure("\n \n\r\n") == " is empty: its first line must hold the names of variables");
    CHECK(Failure("a,b\n") == " holds names of variables, but no observations");
    CHECK(Failure("a,b") == " holds names of variables, but no observations");
    CHECK(Failure("a,b\n1,2\n3\n5,6\n") == ", line 3: 1 value, but the first line holds 2 names");
    CHECK(Failure("a\n1,2\n") == ", line 2: 2 values, but the first line holds 1 name");
    CHECK(Failure("a,b\n1,2,\n") == ", line 2: 3 values, but the first line holds 2 names");
    // Line ends within quotes count, and a record is told by its first line.
    CHECK(Failure("a,b\n\"x\ny\r\nz\",2\n\n\"p\nq\",1,2\n")
          == ", line 6: 3 values, but the first line holds 2 names");
    CHECK(Failure("a,b\r\n1,2\r\n\r\n3\r\n") == ", line 4: 1 value, but the first line holds 2 names");
}

TEST_CASE("a misplaced quote is told with line and column")
{
    CHECK(Failure("a,b\n1,\"x\n2,3\n")
          == ", line 2, column 3: a quoted value that begins here has no closing quote");
    CHECK(Failure("a,b\n1,  \"x")
          == ", line 2, column 5: a quoted value that begins here has no closing quote");
    CHECK(Failure("\"a") == ", line 1, column 1: a quoted value that begins here has no closing quote");
    CHECK(Failure("a,b\n1,5\" pipe\n")
          == ", line 2, column 4: a quote inside of a value that does not begin with one");
    CHECK(Failure("a,b\n\xC3\xA9\xC3\xA9,\"x\"y\n")
          == ", line 2, column 7: a quoted value goes on behind its closing quote");
    CHECK(Failure("a,b\n\"l\n\n\",\"x\" y\n")
          == ", line 4, column 7: a quoted value goes on behind its closing quote");
}

TEST_CASE("bytes that are no text are told with line and column")
{
    CHECK(Failure(std::string("a,b\n1,\0\n", 9))
          == ", line 2, column 3: a NUL byte, which no text file holds");
    CHECK(Failure("a,b\n1,2\n\xC3\xA9,gr\xFC\xDF"
                  "e\n")
          == ", line 3, column 5: a byte that is not UTF-8; save the file as UTF-8 and import it again");
    CHECK(Failure("a,b\n1,\xC3")
          == ", line 2, column 3: a byte that is not UTF-8; save the file as UTF-8 and import it again");
    CHECK(Failure(std::string("\xFF\xFE"
                              "a\0,\0b\0",
                              8))
          == ", line 1, column 1: a byte that is not UTF-8; save the file as UTF-8 and import it again");
}

TEST_CASE("a number that cannot be stored is told with line and column")
{
    std::string const message = ": a number beyond what can be stored, about 1e-308 to 1e308 in size";
    CHECK(Failure("a,b\n1,2\n3, 1e999\n4,-1e999\n") == ", line 3, column 3" + message);
    CHECK(Failure("a,b\n1,1e-999\n") == ", line 2, column 3" + message);
}

TEST_CASE("a quote that swallows the file is found before it fills the memory")
{
    std::string text = "a,b\n1,\"";
    for (int i = 0; i < 400000; ++i)
        text += "123,456\n";
    CHECK(
        Failure(text + "\"\n")
        == ", line 2, column 3: a value of more than a million bytes begins here; is a quote missing?");
    std::string const label(900000, 'x');
    CHECK(Read("a\n" + label + "\n").dataset->labelledColumns.at(1).labels == Texts{label});
    CHECK(Failure(std::string(3000000, ',')) == ", line 1, column 100001: more than 100000 variables");
}

TEST_CASE("a wide header above short lines asks for no memory")
{
    std::string text(90000, ',');
    for (int i = 0; i < 90000; ++i)
        text += "\n1";
    CHECK(Failure(text) == ", line 2: 1 value, but the first line holds 90001 names");
}

TEST_CASE("a path that cannot be read is one clear error")
{
    Scratch const scratch;
    workbench::Progress progress;
    auto const failure = [&](std::string const& path)
    { return ErrorOf([&] { ImportDelimited(path, ',', progress); }); };

    CHECK(failure("") == "the path of the file to read is empty");
    CHECK(failure(scratch.Folder()) == "\"" + scratch.Folder() + "\" cannot be read: it is a folder");
    auto const absent = scratch.Path("no such \"file\".csv");
    CHECK(failure(absent) == "\"" + absent + "\" cannot be read: No such file or directory");
    auto const beneath = scratch.Write("file", "x") + "/t.csv";
    CHECK(failure(beneath) == "\"" + beneath + "\" cannot be read: Not a directory");
    auto const longName = scratch.Path(std::string(300, 'n'));
    CHECK(failure(longName) == "\"" + longName + "\" cannot be read: File name too long");
    CHECK(failure("/dev/null") == "\"/dev/null\" cannot be read: it is not an ordinary file");
    CHECK(failure("/proc/self/mem") == "\"/proc/self/mem\" cannot be read: Input/output error");
    auto const pipe = scratch.Path("pipe");
    REQUIRE(mkfifo(pipe.c_str(), 0600) == 0);
    CHECK(failure(pipe) == "\"" + pipe + "\" cannot be read: it is not an ordinary file");
}

TEST_CASE("a path may hold a double quote where no script is in between")
{
    Scratch const scratch;
    workbench::Progress progress;
    auto const path = scratch.Write("a \"b\" c.csv", "x\n1\n");
    CHECK(ImportDelimited(path, ',', progress).dataset->data(0, 1) == 1.0);
}

TEST_CASE("an export is what the next import reads, and plain to see")
{
    Scratch const scratch;
    workbench::Progress progress;
    auto const dataset = workbench::MakeDataset({"n", "t"}, 3);
    dataset->data.rightCols(2) << 0.1, 0, MISSING, MISSING, -0.0, 1;
    dataset->labelledColumns[2] = {{"x \"y\"", "2"}, {"x \"y\"", "", "2"}};
    auto const path = scratch.Path("out.csv");
    ExportDelimited(*dataset, path, ',', progress);
    CHECK(ReadFile(path) == "n,t\n0.1,\"x \"\"y\"\"\"\n,\"\"\n-0,\"2\"\n");
}

TEST_CASE("a single variable with missing values survives the blank lines that it would make")
{
    Scratch const scratch;
    workbench::Progress progress;
    auto const dataset = workbench::MakeDataset({"n"}, 3);
    dataset->data.col(1) << 1, MISSING, 3;
    auto const path = scratch.Path("out.csv");
    ExportDelimited(*dataset, path, ',', progress);
    CHECK(ReadFile(path) == "n\n1\n.\n3\n");
    CHECK(Same(ImportDelimited(path, ',', progress).dataset->data, dataset->data));
}

TEST_CASE("random datasets come back from delimited text to the last bit")
{
    std::uint32_t const seed = GENERATE(1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u);
    CAPTURE(seed);
    std::mt19937_64 random(seed);
    Scratch const scratch;
    workbench::Progress progress;
    char const* const pieces[] = {
        "\"",   "\"\"", ",",  ";",           "\t",           "\n",
        "\r\n", "\r",   " ",  "\xC3\xA9",    "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
        "a",    "7",    ".",  "NA",          "nan",          "inf",
        "-",    "'",    "\\", "\xEF\xBB\xBF"};
    auto const hostile = [&]
    {
        std::string text;
        for (auto n = random() % 5; n > 0; --n)
            text += pieces[random() % std::size(pieces)];
        return text;
    };
    auto const number = [&]() -> double
    {
        switch (random() % 8)
        {
        case 0:
            return MISSING;
        case 1:
            return -0.0;
        case 2:
            return std::numeric_limits<double>::denorm_min() * static_cast<double>(random() % 100);
        case 3:
            return std::numeric_limits<double>::infinity() * (random() % 2 ? 1 : -1);
        case 4:
            return static_cast<double>(random() % 1000);
        default:
        {
            auto const bits = random();
            double value;
            std::memcpy(&value, &bits, sizeof value);
            return value;
        }
        }
    };

    for (int round = 0; round < 40; ++round)
    {
        auto const cols = static_cast<Eigen::Index>(1 + random() % 6);
        auto const rows = static_cast<Eigen::Index>(1 + random() % 60);
        Texts names;
        for (Eigen::Index j = 0; j < cols; ++j)
            names.push_back("v" + std::to_string(j));
        auto const dataset = workbench::MakeDataset(names, rows);
        for (Eigen::Index j = 1; j <= cols; ++j)
        {
            bool const isText = random() % 2 == 0;
            auto& column = dataset->data;
            for (Eigen::Index i = 0; i < rows; ++i)
            {
                if (!isText)
                {
                    column(i, j) = number();
                    continue;
                }
                auto& labelled = dataset->labelledColumns[static_cast<int>(j)];
                auto const label = hostile();
                labelled.labels.push_back(label);
                auto const level = std::find(labelled.levels.begin(), labelled.levels.end(), label);
                column(i, j) =
                    label.empty() ? MISSING : static_cast<double>(level - labelled.levels.begin());
                if (!label.empty() && level == labelled.levels.end())
                    labelled.levels.push_back(label);
            }
        }

        char const delimiter = ",;\t|"[random() % 4];
        auto const path = scratch.Path("round.csv");
        ExportDelimited(*dataset, path, delimiter, progress);
        auto const import = ImportDelimited(path, delimiter, progress);
        INFO(ReadFile(path));
        REQUIRE(Same(import.dataset->data, dataset->data));
        REQUIRE(import.dataset->varNames == dataset->varNames);
        REQUIRE(import.dataset->labelledColumns.size() == dataset->labelledColumns.size());
        for (auto const& [column, labelled] : dataset->labelledColumns)
        {
            REQUIRE(import.dataset->labelledColumns.at(column).labels == labelled.labels);
            REQUIRE(import.dataset->labelledColumns.at(column).levels == labelled.levels);
        }
    }
}

TEST_CASE("nothing depends on where the blocks of a file begin")
{
    for (int shift = 0; shift < 24; ++shift)
    {
        CAPTURE(shift);
        std::string text = "n" + std::string(static_cast<std::size_t>(shift), 'x') + ",t\r\n";
        constexpr int ROWS = 20000;
        for (int i = 0; i < ROWS; ++i)
            text += "12345.5, \"\xC3\xA9,\xF0\x9F\x98\x80\"\"\r\n\"\r\n";
        auto const import = Read(text);
        auto const& column = import.dataset->labelledColumns.at(2);
        CHECK(import.dataset->data.col(1) == Eigen::VectorXd::Constant(ROWS, 12345.5));
        CHECK(column.labels.size() == ROWS);
        CHECK(column.levels == Texts{"\xC3\xA9,\xF0\x9F\x98\x80\"\r\n"});
        CHECK(Failure(text + "1,\xC3\xA9\"")
              == ", line 40002, column 4: a quote inside of a value that does not begin with one");
    }
}

TEST_CASE("mutated files are imported or refused with a place inside of them")
{
    std::string const seeds[] = {"a,b,c\n1,2,3\n\"x, \"\"y\"\"\",.,1e5\n\"two\nlines\",NA,-4\n",
                                 "\xEF\xBB\xBF"
                                 "n\tt\r\n1\t\"\xC3\xA9\"\r\n2\t\r\n",
                                 "\"a\";\"b\"\n\"1\";\"2\"\n\n3;4"};
    std::string const alphabet("\"\",;\t\n\r 019.eNA-\xC3\xA9\xFF\0x", 22);
    std::mt19937 random(11);
    Scratch const scratch;
    workbench::Progress progress;
    int imported = 0;
    int refused = 0;
    for (int i = 0; i < 3000; ++i)
    {
        auto const seed = random() % 3;
        auto text = seeds[seed];
        for (auto n = 1 + random() % 3; n > 0; --n)
        {
            auto const at = random() % (text.size() + 1);
            if (random() % 2 == 0)
                text.insert(at, 1, alphabet[random() % alphabet.size()]);
            else
                text.erase(at, random() % 4);
        }
        auto const path = scratch.Write("m.csv", text);
        try
        {
            auto const import = ImportDelimited(path, random() % 8 == 0 ? '|' : ",\t;"[seed], progress);
            auto const& dataset = *import.dataset;
            ++imported;
            bool whole = dataset.varNames.GetCount() == static_cast<std::size_t>(dataset.data.cols())
                         && dataset.data.rows() > 0;
            for (auto const& name : dataset.varNames)
                whole = whole && CheckID(name.ToStdString());
            for (auto const& entry : dataset.labelledColumns)
                whole =
                    whole && entry.second.labels.size() == static_cast<std::size_t>(dataset.data.rows());
            if (!whole)
                FAIL("half imported:\n" << text);
        }
        catch (workbench::Error const& error)
        {
            ++refused;
            std::string const message = error.what();
            auto const at = message.find("\", line ");
            int const line = at == std::string::npos ? 1 : std::stoi(message.substr(at + 8));
            int lines = 1;
            for (char const c : text)
                lines += c == '\n' || c == '\r';
            if (message.find(path) != 1 || line < 1 || line > lines)
                FAIL(message << " for\n" << text);
        }
    }
    CHECK(imported > 250);
    CHECK(refused > 250);
}

TEST_CASE("an export that cannot be done leaves no file")
{
    Scratch const scratch;
    workbench::Progress progress;
    auto dataset = workbench::MakeDataset({"n", "t"}, 1);
    dataset->name = "d";
    dataset->data.rightCols(2) << 1, 0;
    auto const path = scratch.Path("out.csv");
    auto const failure = [&](std::string const& target)
    { return ErrorOf([&] { ExportDelimited(*dataset, target, ',', progress); }); };

    CHECK(failure("/nowhere/out.csv")
          == "\"/nowhere/out.csv\" cannot be written: No such file or directory");
    CHECK(failure(scratch.Folder()) == "\"" + scratch.Folder() + "\" cannot be written: it is a folder");
    CHECK(failure("/dev/full") == "\"/dev/full\" cannot be written: it is not an ordinary file");
    CHECK(failure("") == "the path of the file to write is empty");

    dataset->labelledColumns[2] = {{"x"}, {std::string("x\0y", 3)}};
    std::string const noText =
        "dataset \"d\" holds a text that is not UTF-8 or has a NUL character: it cannot be exported";
    CHECK(failure(path) == noText);
    dataset->labelledColumns[2] = {{"x"}, {"gr\xFC\xDF"}};
    CHECK(failure(path) == noText);
    dataset->labelledColumns.clear();
    dataset->varNames.RemoveAt(2);
    CHECK(failure(path)
          == "dataset \"d\" has not as many variable names as columns: it cannot be exported");
    dataset = workbench::MakeDataset({"n"}, 0);
    dataset->name = "d";
    CHECK(failure(path)
          == "dataset \"d\" has no variables or no observations: there is nothing to export");
    dataset = workbench::MakeDataset({}, 3);
    dataset->name = "d";
    CHECK(failure(path)
          == "dataset \"d\" has no variables or no observations: there is nothing to export");
    CHECK(scratch.CountFiles() == 0);
}

TEST_CASE("a large import and a large export report their progress, and stop when told")
{
    Scratch const scratch;
    auto const dataset = workbench::MakeDataset({"a", "b"}, 40000);
    dataset->data.rightCols(2).setConstant(1.0 / 3.0);
    auto const path = scratch.Path("large.csv");
    Meter exporting;
    ExportDelimited(*dataset, path, ',', exporting);
    Meter importing;
    ImportDelimited(path, ',', importing);
    for (auto const* const meter : {&exporting, &importing})
    {
        CHECK(meter->begun.size() == 1);
        CHECK(meter->ended == 1);
        CHECK(meter->fractions.size() >= 5);
        CHECK(std::is_sorted(meter->fractions.begin(), meter->fractions.end()));
        CHECK(meter->fractions.front() >= 0.0);
        CHECK(meter->fractions.back() == 1.0);
    }

    auto const before = ReadFile(path);
    for (int stopAt = 1; stopAt <= static_cast<int>(exporting.fractions.size()); ++stopAt)
    {
        Meter meter;
        meter.stopAt = stopAt;
        CHECK_THROWS_AS(ExportDelimited(*dataset, path, ';', meter), workbench::Interrupted);
        CHECK(meter.ended == 1);
    }
    CHECK(ReadFile(path) == before);
    CHECK(scratch.CountFiles() == 1);
    for (int stopAt = 1; stopAt <= static_cast<int>(importing.fractions.size()); ++stopAt)
    {
        Meter meter;
        meter.stopAt = stopAt;
        CHECK_THROWS_AS(ImportDelimited(path, ',', meter), workbench::Interrupted);
        CHECK(meter.ended == 1);
    }
}

TEST_CASE("a hundred thousand rows come back as they went")
{
    Scratch const scratch;
    workbench::Progress progress;
    Texts names;
    for (int j = 0; j < 20; ++j)
        names.push_back("v" + std::to_string(j));
    auto const dataset = workbench::MakeDataset(names, 100000);
    std::mt19937_64 random(3);
    std::normal_distribution<double> normal;
    dataset->data.rightCols(20) =
        Eigen::MatrixXd::NullaryExpr(100000, 20, [&] { return normal(random); });
    auto const path = scratch.Path("large.csv");
    ExportDelimited(*dataset, path, ',', progress);
    auto const import = ImportDelimited(path, ',', progress);
    CHECK(import.dataset->data == dataset->data);
}
