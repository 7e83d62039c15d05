// How numbers are written and read where the decimal comma is at home.

#include <clocale>
#include <cstdlib>

#include <wx/filename.h>

#include "modelspec/ExogValuesGrid.h"
#include "modelspec/NumberGridChecks.h"
#include "modelspec/PriorGrid.h"

using namespace number_grid_checks;

namespace
{
/// The process is in a German locale, made for it, while this lives.
class InGerman
{
public:
    InGerman()
        : m_before(std::setlocale(LC_ALL, nullptr)),
          m_folder(wxFileName::CreateTempFileName("zenqo-locale") + ".d")
    {
        wxFileName::Mkdir(m_folder);
        wxString const command
            = "localedef -i de_DE -f UTF-8 '" + m_folder + "/de_DE.UTF-8' >/dev/null 2>&1";
        INFO("this needs the sources of the locales, Debian's package \"locales\"");
        REQUIRE(std::system(command.utf8_str()) == 0);
        setenv("LOCPATH", m_folder.utf8_str(), 1);
        REQUIRE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
        REQUIRE(std::localeconv()->decimal_point == std::string(","));
    }
    ~InGerman()
    {
        unsetenv("LOCPATH");
        std::setlocale(LC_ALL, m_before.c_str());
        wxFileName::Rmdir(m_folder, wxPATH_RMDIR_RECURSIVE);
        wxRemoveFile(m_folder.BeforeLast('.'));
    }

private:
    std::string m_before;
    wxString m_folder;
};

Eigen::MatrixXd Values()
{
    return (Eigen::MatrixXd(4, 1) << 0.25, 1234567, -1.5, 1234.5).finished();
}
} // namespace

TEST_CASE("with LC_NUMERIC put back to C, a German program's grids read what they show")
{
    InGerman const german;
    std::setlocale(LC_NUMERIC, "C");
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(4), Values());
    stage.Fill(grid);
    CHECK(Column(grid, 0) == Texts{"0.25", "1.23457e+06", "-1.5", "1234.5"});
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(4, 1) << 0.25, 1234570, -1.5, 1234.5).finished());

    GoTo(grid, 0, 0);
    TypeText("2.75");
    Press(WXK_RETURN);
    CHECK(grid->ReadFields()(0, 0) == 2.75);
    // The comma is a key like any letter.
    GoTo(grid, 0, 0);
    TypeText("1,5");
    Press(WXK_RETURN);
    CHECK(grid->ReadFields()(0, 0) == 15);

    auto* const exogenous = new ExogValuesGrid(stage.Frame(), 4, Names(1), Values());
    stage.Fill(exogenous);
    CHECK(exogenous->ReadFields()(2, 0) == -1.5);
}

TEST_CASE("with the decimal comma left on, a program's grids cut the numbers at the point")
{
    InGerman const german;
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(4), Values());
    stage.Fill(grid);
    CHECK(Column(grid, 0) == Texts{"0.25", "1.23457e+06", "-1.5", "1234.5"});
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(4, 1) << 0, 1, -1, 1234).finished());
}
