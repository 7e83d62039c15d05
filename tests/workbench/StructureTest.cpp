#include "workbench/engine/Structure.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/DataDesk.h"
#include "workbench/Scratch.h"

using workbench::Structure;

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();

/// A dataset of one variable t that holds `labels`.
std::shared_ptr<Dataset> Texts(std::vector<std::string> const& labels)
{
    auto const dataset = workbench::MakeDataset({"t"}, static_cast<Eigen::Index>(labels.size()));
    dataset->data.col(1).setZero();
    dataset->labelledColumns[1] = {{}, labels};
    return dataset;
}

std::shared_ptr<Dataset> Values(std::vector<double> const& values)
{
    auto const dataset = workbench::MakeDataset({"t"}, static_cast<Eigen::Index>(values.size()));
    std::copy(values.begin(), values.end(), dataset->data.col(1).begin());
    return dataset;
}

std::string Refusal(std::shared_ptr<Dataset> const& dataset, std::string const& format)
{
    workbench::Progress progress;
    return ErrorOf([&] { CheckStructure(*dataset, {"t", format, ""}, progress); });
}

/// Three observations on year, the text quarter, firm, the text name, and x; firm and name miss one
/// value in `gaps`.
void Fill(DataDesk& desk)
{
    auto const d = workbench::MakeDataset({"year", "quarter", "firm", "name", "x", "gaps"}, 3);
    d->data.rightCols(6) << 2003, 0, 1, 0, 5, 1, 2001, 1, 1, 0, 6, NA, 2002, 2, 2, 1, 7, 3;
    d->labelledColumns[2] = {{"2003q1", "2001q4", "2002q2"}, {"2003q1", "2001q4", "2002q2"}};
    d->labelledColumns[4] = {{"a", "\xC3\xA9"}, {"a", "a", "\xC3\xA9"}};
    desk.workspace.Assign("d", d);
}
} // namespace

TEST_CASE("times in each of the formats, and what is none")
{
    CHECK(workbench::TimeFormats()
          == std::vector<std::string>{"index", "yyyyqx", "yyyymxx", "yyyy/mm/dd"});
    CHECK(Refusal(Values({1947, 0, -3, 1e15}), "index") == "(no error)");
    CHECK(Refusal(Texts({"2001q1", "1999Q4", "0000q2"}), "yyyyqx") == "(no error)");
    CHECK(Refusal(Texts({"2001m01", "1999M12"}), "yyyymxx") == "(no error)");
    CHECK(Refusal(Texts({"2001/12/31", "2000/02/29", "2004/02/29", "1900/02/28"}), "yyyy/mm/dd")
          == "(no error)");

    auto const unfit = [](std::string const& format)
    { return "the variable \"t\" does not fit the time format \"" + format + "\": "; };
    CHECK(Refusal(Values({1, 1.5, NA, std::numeric_limits<double>::infinity()}), "index")
          == unfit("index") + "row 2 has 1.5, row 3 has no value, row 4 has inf");
    for (std::string const bad : {"2001q0", "2001q5", "2001 q1", "2001q", "2001q11", "01q1", "2001m01",
                                  "2001-1", " 2001q1", "200\xC3\xA9q1", "-001q1", "2001q1 "})
        CHECK(Refusal(Texts({"2001q1", bad}), "yyyyqx")
              == unfit("yyyyqx") + "row 2 has \"" + bad + "\"");
    for (std::string const bad :
         {"2001m1", "2001m00", "2001m13", "2001m001", "2001q1", "2001m1x", "2001m+1"})
        CHECK(Refusal(Texts({bad}), "yyyymxx") == unfit("yyyymxx") + "row 1 has \"" + bad + "\"");
    for (std::string const bad : {"2001/2/01", "2001/02/29", "1900/02/29", "2001/13/01", "2001/00/01",
                                  "2001/01/00", "2001/04/31", "2001-01-01", "01/01/2001", "2001/01/011"})
        CHECK(Refusal(Texts({bad}), "yyyy/mm/dd") == unfit("yyyy/mm/dd") + "row 1 has \"" + bad + "\"");
    CHECK(Refusal(Texts({"", "a", "b", "2001q1", "c", "d", "e", "f"}), "yyyyqx")
          == unfit("yyyyqx")
                 + "row 1 has no value, row 2 has \"a\", row 3 has \"b\", row 5 has \"c\", row 6 has "
                   "\"d\", and 2 "
                   "more");

    CHECK(Refusal(Texts({"1"}), "index")
          == "the time format \"index\" takes whole numbers, and the variable \"t\" holds text");
    CHECK(
        Refusal(Values({2001}), "yyyyqx")
        == "the time format \"yyyyqx\" takes text such as 2001q4, and the variable \"t\" holds numbers");
    CHECK(Refusal(Values({2001}), "yyyymxx")
          == "the time format \"yyyymxx\" takes text such as 2001m12, and the variable \"t\" holds "
             "numbers");
    CHECK(Refusal(Values({2001}), "yyyy/mm/dd")
          == "the time format \"yyyy/mm/dd\" takes text such as 2001/12/31, and the variable \"t\" "
             "holds numbers");
    CHECK(Refusal(Values({}), "index") == "(no error)");
}

TEST_CASE("a structure is told, shown, changed and taken away")
{
    DataDesk desk;
    Fill(desk);
    auto const before = desk.workspace;
    CHECK(desk.Run("structure(d, \"year\", \"index\", \"\");")
          == "\nStructure of d: time variable year (index)\n");
    CHECK(desk.workspace.StructureOf("d") == Structure{"year", "index", ""});
    // The dataset is the same object, and the workspace is not as it was.
    CHECK(desk.workspace.datasets == before.datasets);
    CHECK_FALSE(desk.workspace.SameObjects(before));

    CHECK(desk.Run("structure(d, \"quarter\", \"yyyyqx\", \"name\");")
          == "\nStructure of d: time variable quarter (yyyyqx), group variable name\n");
    CHECK(desk.workspace.StructureOf("d") == Structure{"quarter", "yyyyqx", "name"});
    auto const printed = desk.Run("print(d);");
    std::string const line = "\nStructure of d: time variable quarter (yyyyqx), group variable name\n";
    CHECK(printed.substr(printed.size() - line.size()) == line);
    CHECK(desk.Run("structure(d, \"\", \"yyyyqx\", \"firm\");")
          == "\nStructure of d: group variable firm\n");
    CHECK(desk.workspace.StructureOf("d") == Structure{"", "", "firm"});
    CHECK(desk.Run("structure(d, \"\", \"index\", \"\");") == "\nd has no structure\n");
    CHECK(desk.workspace.structures.empty());
    CHECK(desk.workspace.SameObjects(before));
    CHECK(desk.Run("structure(d, \"\", \"\", \"\");") == "\nd has no structure\n");
}

TEST_CASE("what cannot be a structure is told, and the old one stays")
{
    DataDesk desk;
    Fill(desk);
    desk.Run("structure(d, \"year\", \"index\", \"\");");
    std::string const at = "Line 1, column 1: ";
    CHECK(desk.Failure("structure(d, \"time\", \"index\", \"\");")
          == at + "the dataset has no variable \"time\"");
    CHECK(desk.Failure("structure(d, \"year\", \"index\", \"id\");")
          == at + "the dataset has no variable \"id\"");
    CHECK(desk.Failure("structure(d, \"constant\", \"index\", \"\");")
          == at + "the dataset has no variable \"constant\"");
    std::string const formats = "; the time formats are: index, yyyyqx, yyyymxx, yyyy/mm/dd";
    CHECK(desk.Failure("structure(d, \"year\", \"yyyy\", \"\");")
          == at + "there is no time format \"yyyy\"" + formats);
    CHECK(desk.Failure("structure(d, \"year\", \"\", \"\");")
          == at + "there is no time format \"\"" + formats);
    CHECK(desk.Failure("structure(d, \"\", \"INDEX\", \"firm\");")
          == at + "there is no time format \"INDEX\"" + formats);
    CHECK(desk.Failure("structure(d, \"firm\", \"index\", \"firm\");")
          == at + "the variable \"firm\" cannot tell both the time and the group");
    CHECK(desk.Failure("structure(d, \"year\", \"index\", \"gaps\");")
          == at + "the group variable \"gaps\" must have a value in every row: row 2 has none");
    CHECK(desk.Failure("structure(d, \"name\", \"yyyymxx\", \"\");")
          == at
                 + "the variable \"name\" does not fit the time format \"yyyymxx\": row 1 has \"a\", "
                   "row 2 has \"a\", "
                   "row 3 has \"\xC3\xA9\"");
    CHECK(desk.Failure("structure(d, \"year\");")
          == at
                 + "\"structure\" does not take 2 arguments; expected structure(dataset, \"time\", "
                   "\"format\", "
                   "\"group\");");
    CHECK(desk.workspace.StructureOf("d") == Structure{"year", "index", ""});
    desk.meter.stopAt = 1;
    desk.meter.fractions.clear();
    CHECK(desk.Failure("structure(d, \"firm\", \"index\", \"\");")
          == at + "interrupted; the statement changed nothing");
}

TEST_CASE("a structure follows its dataset")
{
    DataDesk desk;
    Fill(desk);
    Structure const panel{"quarter", "yyyyqx", "name"};
    desk.Run("structure(d, \"quarter\", \"yyyyqx\", \"name\"); copy = d; d = d;");
    CHECK(desk.workspace.StructureOf("d") == panel);
    CHECK(desk.workspace.StructureOf("copy") == panel);
    desk.Run("sort(d, \"year\"); create(d, \"y\", \"d.x\"); drop(d, \"x year\");");
    CHECK(desk.workspace.StructureOf("d") == panel);
    CHECK(desk.output.warnings.empty());
    desk.Run("clear(copy);");
    CHECK(desk.workspace.structures.size() == 1);
    // A name that goes to something else has no structure any more.
    desk.Run("e = d; e = [1];");
    CHECK(desk.workspace.structures.size() == 1);
    desk.Run("m = d; structure(m, \"\", \"\", \"\"); d = m;");
    CHECK(desk.workspace.structures.empty());
}

TEST_CASE("a structure goes with a variable on which it rests, and a warning tells")
{
    for (std::string const statement : {"drop(d, \"x quarter\");", "create(d, \"quarter\", \"d.x\");"})
    {
        DataDesk desk;
        Fill(desk);
        desk.Run("structure(d, \"quarter\", \"yyyyqx\", \"name\");");
        desk.Run(statement);
        CHECK(desk.workspace.structures.empty());
        CHECK(
            desk.output.warnings
            == std::vector<std::string>{
                "The dataset \"d\" has lost its structure, which rested on the variable \"quarter\"."});
    }
    DataDesk desk;
    Fill(desk);
    desk.Run("structure(d, \"quarter\", \"yyyyqx\", \"name\"); drop(d, \"name\");");
    CHECK(desk.workspace.structures.empty());
    CHECK(desk.output.warnings
          == std::vector<std::string>{
              "The dataset \"d\" has lost its structure, which rested on the variable \"name\"."});
    Fill(desk);
    desk.Run("structure(d, \"year\", \"index\", \"\");");
    CHECK(desk.Failure("drop(d, \"year nothing\");")
          == "Line 1, column 1: the dataset has no variable \"nothing\"");
    CHECK(desk.workspace.StructureOf("d") == Structure{"year", "index", ""});
    CHECK(desk.output.warnings.size() == 1);
}

TEST_CASE("a structure comes back from a workspace file, and loading another one takes it away")
{
    Scratch const scratch;
    DataDesk desk;
    Fill(desk);
    auto const with = scratch.Path("with.zws");
    auto const without = scratch.Path("without.zws");
    desk.Run("save(\"" + without + "\"); structure(d, \"quarter\", \"yyyyqx\", \"name\"); save(\"" + with
             + "\");");
    desk.Run("load(\"" + without + "\");");
    CHECK(desk.workspace.structures.empty());
    desk.Run("load(\"" + with + "\");");
    CHECK(desk.workspace.StructureOf("d") == Structure{"quarter", "yyyyqx", "name"});
    desk.Run("structure(d, \"\", \"\", \"\"); save(\"" + with + "\");");
    CHECK(ReadFile(with) == ReadFile(without));
}
