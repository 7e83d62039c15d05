#include <catch2/catch.hpp>

#include <cmath>
#include <fstream>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"
#include "workbench/script/Interpreter.h"
#include "workbench/script/Parser.h"

using workbench::Interpreter;
using Echo = workbench::Interpreter::Echo;

namespace
{
/// An interpreter with all that it needs.
struct Desk
{
    workbench::Workspace workspace;
    Recorder output;
    Meter meter;
    Interpreter interpreter{workspace, output, meter};

    bool Run(std::string const& script, Echo echo = Echo::None)
    {
        bool const done = interpreter.Run(script, echo);
        if (!output.errors.empty())
            UNSCOPED_INFO(output.errors.back());
        return done;
    }

    /// Runs a script that must fail, and gives its one error.
    std::string Failure(std::string const& script)
    {
        output.errors.clear();
        if (Run(script))
            return "(no error)";
        return output.errors.size() == 1 ? output.errors[0] : "(not one error)";
    }
};

std::string const WAGES = "person,wage,educ\nann,10.5,12\nbob,NA,16\n,8,1234567\n";
} // namespace

TEST_CASE("a file is imported, printed, exported and cleared")
{
    Scratch scratch;
    auto const path = scratch.Write("wages.csv", WAGES);
    Desk desk;
    REQUIRE(desk.Run("wages = import(\"" + path + "\", \",\");"));
    REQUIRE(desk.workspace.datasets.count("wages") == 1);
    auto const& wages = *desk.workspace.datasets["wages"];
    CHECK(wages.name == "wages");
    REQUIRE(wages.varNames.GetCount() == 4);
    CHECK(wages.varNames[0] == "constant");
    CHECK(wages.varNames[3] == "educ");
    CHECK(wages.data.col(0) == Eigen::VectorXd::Ones(3));

    REQUIRE(desk.Run("print(wages);"));
    CHECK(desk.output.text
          == "\nDataset wages: 3 observations of 3 variables\n"
             "obs\tperson\twage\t       educ\n"
             "  1\tann   \t10.5\t         12\n"
             "  2\tbob   \t   .\t         16\n"
             "  3\t.     \t   8\t1.23457e+06\n");

    REQUIRE(desk.Run("export(wages, \"" + scratch.Path("out.csv") + "\", \";\"); clear(wages);"));
    CHECK(ReadFile(scratch.Path("out.csv"))
          == "person;wage;educ\n\"ann\";10.5;12\n\"bob\";;16\n\"\";8;1234567\n");
    CHECK(desk.workspace.datasets.empty());
    CHECK(desk.output.errors.empty());
    CHECK(desk.output.warnings.empty());
}

TEST_CASE("a tab is written as a backslash and a t, or as itself")
{
    Scratch scratch;
    auto const path = scratch.Write("t.txt", "a\tb\n1\t2\n");
    Desk desk;
    CHECK(desk.Run("one = import(\"" + path + "\", \"\\t\"); two = import(\"" + path + "\", \"\t\");"));
    CHECK(desk.workspace.datasets["one"]->data(0, 2) == 2.0);
    CHECK(desk.workspace.datasets["two"]->data(0, 2) == 2.0);
}

TEST_CASE("a console that keeps so many lines is shown the last observations")
{
    std::string text = "x\n";
    for (int i = 1; i <= 50; ++i)
        text += std::to_string(i * i) + "\n";
    Scratch scratch;
    auto const path = scratch.Write("x.csv", text);
    Desk desk;
    desk.output.maxLines = 6;
    REQUIRE(desk.Run("x = import(\"" + path + "\", \",\"); print(x);"));
    CHECK(desk.output.text
          == "\nDataset x: 50 observations of 1 variable, of which the last 3 are shown\n"
             "obs\t   x\n 48\t2304\n 49\t2401\n 50\t2500\n");
}

TEST_CASE("labels keep to one cell when printed")
{
    Scratch scratch;
    auto const path = scratch.Write("x.csv", "a,b\n\"two\nlines\",\"a\ttab\"\n");
    Desk desk;
    REQUIRE(desk.Run("x = import(\"" + path + "\", \",\"); print(x);"));
    CHECK(desk.output.text
          == "\nDataset x: 1 observation of 2 variables\nobs\ta        \tb    \n  1\ttwo lines\ta tab\n");
}

TEST_CASE("matrices are made, copied, replaced and printed")
{
    Desk desk;
    REQUIRE(desk.Run("a = [1, 2; 3, 4]; b = a; a = [5]; e = []; print(b); print(e);"));
    CHECK(*desk.workspace.matrices["a"] == Eigen::MatrixXd::Constant(1, 1, 5));
    Eigen::MatrixXd b(2, 2);
    b << 1, 2, 3, 4;
    CHECK(*desk.workspace.matrices["b"] == b);
    CHECK(desk.output.text == "\nMatrix b: 2 rows, 2 columns\n\nMatrix e: 0 rows, 0 columns\n");
    REQUIRE(desk.output.matrices.size() == 1);
    CHECK(desk.output.matrices[0] == b);
}

TEST_CASE("a matrix is exported without names, each number as short as brings it back")
{
    Scratch scratch;
    Desk desk;
    auto const path = scratch.Path("m.txt");
    REQUIRE(desk.Run("m = [1, 0.1; -inf, nan; 1e300, -0.5]; export(m, \"" + path + "\", \"\\t\");"));
    CHECK(ReadFile(path) == "1\t0.1\n-inf\tNaN\n1e+300\t-0.5\n");
    CHECK(desk.Failure("e = []; export(e, \"" + path + "\", \",\");")
          == "Line 1, column 9: matrix \"e\" has no elements: there is nothing to export");
    CHECK(ReadFile(path).size() > 0);
}

TEST_CASE("a copy shares nothing with what it was made of")
{
    Scratch scratch;
    auto const path = scratch.Write("wages.csv", WAGES);
    Desk desk;
    REQUIRE(desk.Run("wages = import(\"" + path + "\", \",\"); copy = wages;"));
    CHECK(desk.workspace.datasets["copy"]->name == "copy");
    CHECK(desk.workspace.datasets["wages"]->name == "wages");
    desk.workspace.datasets["copy"]->data(0, 2) = 99;
    CHECK(desk.workspace.datasets["wages"]->data(0, 2) == 10.5);
}

TEST_CASE("a name stands for one object, whatever its kind")
{
    Scratch scratch;
    auto const path = scratch.Write("wages.csv", WAGES);
    Desk desk;
    desk.workspace.models["x"] = std::make_shared<Model>();
    REQUIRE(desk.Run("x = [1];"));
    CHECK(desk.workspace.models.empty());
    CHECK(desk.workspace.matrices.size() == 1);
    REQUIRE(desk.Run("x = import(\"" + path + "\", \",\");"));
    CHECK(desk.workspace.matrices.empty());
    CHECK(desk.workspace.datasets.size() == 1);
    REQUIRE(desk.Run("x = x;"));
    CHECK(desk.workspace.datasets.size() == 1);
}

TEST_CASE("a model prints the names of its draws and its results")
{
    Desk desk;
    auto model = std::make_shared<Model>();
    model->drawNames = {"beta1", "sigma"};
    model->results["logML"] = Eigen::MatrixXd::Constant(1, 1, -12.5);
    desk.workspace.models["ols"] = model;
    REQUIRE(desk.Run("print(ols); second = ols; clear(ols);"));
    CHECK(desk.output.text
          == "\nModel ols: draws of 2 quantities\n  beta1\n  sigma\n"
             "\nMatrix ols, logML: 1 row, 1 column\n");
    REQUIRE(desk.output.matrices.size() == 1);
    CHECK(desk.output.matrices[0](0, 0) == -12.5);
    CHECK(desk.workspace.models.count("second") == 1);
    CHECK(desk.workspace.models.count("ols") == 0);
}

TEST_CASE("statements are echoed one by one, before they run")
{
    Desk desk;
    CHECK_FALSE(desk.Run("// hello\na = [1,\n 2]; print(b); print(a);", Echo::Statements));
    CHECK(desk.output.codes == std::vector<std::string>{"a = [1,\n 2];", "print(b);"});
    CHECK(desk.output.errors
          == std::vector<std::string>{
              "Line 3, column 12: there is nothing called \"b\" in the workspace; the names are: a"});
    CHECK(desk.output.text.empty());
}

TEST_CASE("a script that cannot be read runs nothing")
{
    Desk desk;
    CHECK(desk.Failure("a = [1];\nprint(a")
          == "Line 2, column 8: expected \",\" or \")\" behind an argument of \"print\", but found the "
             "end of the script");
    CHECK(desk.Failure("a = [1];\nprnt(a);")
          == "Line 2, column 1: there is no command \"prnt\"; did you mean \"print\"?");
    CHECK(desk.workspace.matrices.empty());
    CHECK(desk.Run(""));
}

TEST_CASE("a command is used as its entry says")
{
    Desk desk;
    CHECK(desk.Failure("xyzzy();")
          == "Line 1, column 1: there is no command \"xyzzy\"; the commands are: "
             "clear, compare, create, design, drop, export, forecast, help, import, jags, load, mfx, octave, "
             "plot, predict, print, regress, rproject, save, sort and 4 more");
    CHECK(desk.Failure("load();")
          == "Line 1, column 1: \"load\" does not take 0 arguments; expected load(\"path\");");
    CHECK(desk.Failure("load(\"a\", \"b\");")
          == "Line 1, column 1: \"load\" does not take 2 arguments; expected load(\"path\");");
    CHECK(desk.Failure("load(a);")
          == "Line 1, column 6: expected a string in double quotes as the path in "
             "load(\"path\"); but found the name \"a\"");
    CHECK(desk.Failure("print(\"a\");")
          == "Line 1, column 7: expected the name of an object as the name in print(name); but found "
             "the string \"a\"");
    CHECK(desk.Failure("print([1]);")
          == "Line 1, column 7: expected the name of an object as the name in print(name); but found a "
             "matrix");
    CHECK(desk.Failure("x = import(\"a\", \"ab\");")
          == "Line 1, column 17: expected a string of one character, or \"\\t\" for the tab, as the "
             "delimiter in "
             "name = import(\"path\", \"delimiter\"); but found the string \"ab\"");
    CHECK(desk.Failure("x = import(\"a\", \"\");")
          == "Line 1, column 17: expected a string of one character, or \"\\t\" for the tab, as the "
             "delimiter in "
             "name = import(\"path\", \"delimiter\"); but found the string \"\"");
    CHECK(desk.Failure("import(\"a\", \",\");")
          == "Line 1, column 1: what \"import\" gives needs a name; expected "
             "name = import(\"path\", \"delimiter\");");
    CHECK(
        desk.Failure("x = load(\"a\");")
        == "Line 1, column 5: \"load\" gives nothing that could have a name; expected load(\"path\");");
    CHECK(desk.Failure("__ZenqoEmptyDataset__ = [1];")
          == "Line 1, column 1: the name \"__ZenqoEmptyDataset__\" is kept for the program's own use");
}

TEST_CASE("options stand behind the arguments, each once")
{
    auto const statements = workbench::ParseScript(
        "f(a, \"b\", \"point\"=\"mean\",\n\t\"W\"=[\t1, 2; 3, 4]\n\t, \"prefix\" = p, \"n\"=-3);");
    REQUIRE(statements.size() == 1);
    auto const& call = std::get<workbench::Call>(statements[0].value);
    CHECK(call.arguments.size() == 2);
    REQUIRE(call.options.size() == 4);
    CHECK(call.options[0].key == "point");
    CHECK(call.options[0].value.kind == workbench::Argument::Kind::String);
    CHECK(call.options[0].value.text == "mean");
    CHECK(call.options[1].key == "W");
    CHECK(call.options[1].position.line == 2);
    CHECK(call.options[1].value.matrix == (Eigen::MatrixXd(2, 2) << 1, 2, 3, 4).finished());
    CHECK(call.options[2].value.kind == workbench::Argument::Kind::Name);
    CHECK(call.options[2].value.text == "p");
    CHECK(call.options[3].value.matrix(0, 0) == -3);

    Desk desk;
    CHECK(desk.Failure("help(\"a\"=1);") == "Line 1, column 6: \"help\" has no option \"a\"");
    CHECK(desk.Failure("save(\"a\"=1, \"b\");")
          == "Line 1, column 13: expected only options, \"key\"=value, behind the first one");
    CHECK(desk.Failure("save(\"a\"=);")
          == "Line 1, column 10: expected a string, a name, a number or a matrix, but found \")\"");
    CHECK(desk.Failure("save(\"a\"=1);")
          == "Line 1, column 1: \"save\" does not take 0 arguments; expected save(\"path\");");
}

TEST_CASE("a name that is not there is told with what is")
{
    Desk desk;
    CHECK(desk.Failure("print(x);")
          == "Line 1, column 7: there is nothing called \"x\" in the workspace; there are no names");
    REQUIRE(desk.Run("wages = [1]; prices = [2];"));
    CHECK(desk.Failure("a = wagse;")
          == "Line 1, column 5: there is nothing called \"wagse\" in the workspace; did you mean "
             "\"wages\"?");
    CHECK(desk.Failure("clear(x);")
          == "Line 1, column 7: there is nothing called \"x\" in the workspace; the names are: prices, "
             "wages");
    CHECK(desk.Failure("sort(wages, \"educ\");")
          == "Line 1, column 6: expected the name of a dataset, but \"wages\" is none");
}

TEST_CASE("a statement that fails changes nothing, and ends the script")
{
    Scratch scratch;
    auto const bad = scratch.Write("bad.csv", "a,b\n1,2\n3\n");
    Desk desk;
    REQUIRE(desk.Run("x = [7];"));
    CHECK(desk.Failure("y = [8];\nx = import(\"" + bad + "\", \",\");\nz = [9];")
          == "Line 2, column 1: \"" + bad + "\", line 3: 1 value, but the first line holds 2 names");
    CHECK((*desk.workspace.matrices["x"])(0, 0) == 7.0);
    CHECK(desk.workspace.matrices.count("y") == 1);
    CHECK(desk.workspace.matrices.count("z") == 0);
    CHECK(desk.workspace.datasets.empty());
    CHECK(desk.Failure("load(\"/nowhere/x.zws\");")
          == "Line 1, column 1: \"/nowhere/x.zws\" cannot be read: No such file or directory");
    CHECK(desk.workspace.matrices.size() == 2);
}

TEST_CASE("a workspace is saved and loaded in place of the present one")
{
    Scratch scratch;
    auto const csv = scratch.Write("wages.csv", WAGES);
    auto const file = scratch.Path("my work.zws");
    Desk desk;
    REQUIRE(desk.Run("wages = import(\"" + csv + "\", \",\"); m = [1, 2]; save(\"" + file + "\");"));
    REQUIRE(desk.Run("clear(wages); other = [3]; load(\"" + file + "\");"));
    CHECK(desk.workspace.Names() == std::vector<std::string>{"m", "wages"});
    CHECK(desk.workspace.datasets["wages"]->labelledColumns.at(1).labels
          == std::vector<std::string>{"ann", "bob", ""});
    CHECK(desk.meter.begun.size() == 3);
    CHECK(desk.meter.ended == 3);
}

TEST_CASE("stop leaves the statement undone and tells so once")
{
    Scratch scratch;
    auto const csv = scratch.Write("wages.csv", WAGES);
    auto const file = scratch.Path("w.zws");
    auto const out = scratch.Path("out.csv");
    Desk desk;
    REQUIRE(desk.Run("m = [1]; d = import(\"" + csv + "\", \",\"); save(\"" + file + "\"); n = [2];"));
    auto const before = ReadFile(file);
    for (auto const& statement : {"w = import(\"" + csv + "\", \",\");", "save(\"" + file + "\");",
                                  "load(\"" + file + "\");", "export(d, \"" + out + "\", \",\");"})
    {
        INFO(statement);
        desk.meter = Meter();
        desk.meter.stopAt = 1;
        CHECK(desk.Failure(statement) == "Line 1, column 1: interrupted; the statement changed nothing");
        CHECK(desk.meter.begun.size() == 1);
        CHECK(desk.meter.ended == 1);
        CHECK(desk.workspace.Names() == std::vector<std::string>{"d", "m", "n"});
    }
    CHECK(ReadFile(file) == before);
    CHECK(scratch.CountFiles() == 2);
}

TEST_CASE("the changed names of an import are one warning")
{
    Scratch scratch;
    auto const path = scratch.Write("x.csv", "a b,a b,,x,x\n1,2,3,4,5\n");
    Desk desk;
    REQUIRE(desk.Run("x = import(\"" + path + "\", \",\");"));
    CHECK(desk.output.warnings
          == std::vector<std::string>{
              "Names in \"" + path
              + "\" were changed to make them legal and unique: \"a b\" to \"a_b\", \"a b\" to "
                "\"a_b_2\", \"\" to \"unnamed\", \"x\" to \"x_2\"."});
}

TEST_CASE("help shows each command with its use")
{
    Desk desk;
    REQUIRE(desk.Run("help();"));
    CHECK(desk.output.text.find("\nname = import(\"path\", \"delimiter\");\n    Reads a dataset")
          != std::string::npos);
    CHECK(desk.output.text.find("\nprint(name);\n    Shows an object on the console.\n")
          != std::string::npos);
}
