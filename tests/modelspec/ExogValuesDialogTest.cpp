#include "modelspec/ExogValuesDialog.h"

#include "modelspec/ExogValuesGrid.h"
#include "modelspec/NotebookDialogChecks.h"
#include "modelspec/NumberGridChecks.h"

using namespace notebook_dialog_checks;
using namespace number_grid_checks;

namespace
{
/// A dialog as it is made, and its grid.
struct Fixture
{
    Stage stage;
    ExogValuesDialog dialog{stage.Frame()};
    ExogValuesGrid* grid = Find<ExogValuesGrid>(&dialog);

    wxWindow* Button(int id) { return dialog.FindWindow(id); }

    /// Two periods of two variables, all of them one.
    void Draw()
    {
        std::vector<std::string> names = {"gdp", "Z\xC3\xBCrich"};
        dialog.DrawGrid(2, names, Eigen::MatrixXd::Ones(2, 2));
    }
};
} // namespace

TEST_CASE("exogenous values dialog: layout")
{
    Fixture fixture;
    Layout(fixture.dialog, "Define Values for the Exogenous Variables", "Values");
    CHECK(fixture.dialog.GetParent() == fixture.stage.Frame());
    REQUIRE(fixture.grid);
    CHECK(fixture.grid->GetParent() == Find<wxNotebook>(&fixture.dialog));
    CHECK(RowLabels(fixture.grid) == Texts{"T+1"});
    CHECK(ColLabels(fixture.grid) == Texts{"__Zenqo_SYSTEM_DEFAULT_STRING___"});
    CHECK(fixture.dialog.GetValues() == Eigen::MatrixXd::Zero(1, 1));
}

TEST_CASE("exogenous values dialog: periods and names are the owner's")
{
    Fixture fixture;
    fixture.Draw();
    CHECK(RowLabels(fixture.grid) == Texts{"T+1", "T+2"});
    CHECK(ColLabels(fixture.grid) == Texts{"gdp", wxString::FromUTF8("Z\xC3\xBCrich")});
    CHECK(fixture.dialog.GetValues() == Eigen::MatrixXd::Ones(2, 2));

    std::vector<std::string> none;
    fixture.dialog.DrawGrid(2, none, Eigen::MatrixXd());
    CHECK(fixture.dialog.GetValues().rows() == 2);
    CHECK(fixture.dialog.GetValues().cols() == 0);
}

TEST_CASE("exogenous values dialog: the keyboard is on OK; Enter accepts, Escape and closing cancel")
{
    Fixture fixture;
    fixture.Draw();
    CHECK(RunDialog(fixture.dialog,
              [&]
              {
                  CHECK(fixture.Button(wxID_OK)->HasFocus());
                  Press(WXK_RETURN);
              })
          == wxID_OK);
    CHECK(RunDialog(fixture.dialog, [&] { Press(WXK_ESCAPE); }) == wxID_CANCEL);
    CHECK(RunDialog(fixture.dialog, [&] { fixture.dialog.Close(); }) == wxID_CANCEL);
    CHECK(RunDialog(fixture.dialog, [&] { Click(fixture.Button(wxID_CANCEL)); }) == wxID_CANCEL);
}

TEST_CASE("exogenous values dialog: typed values come back, the one in the making too")
{
    Fixture fixture;
    fixture.Draw();
    bool const byMouse = GENERATE(true, false);
    CHECK(RunDialog(fixture.dialog,
              [&]
              {
                  GoTo(fixture.grid, 0, 0);
                  TypeText("2.5");
                  Press(WXK_TAB);
                  TypeText("-3");
                  Press(WXK_RETURN);
                  TypeText("1234567");
                  CHECK(IsEditing(fixture.grid));
                  Keep(Photograph(&fixture.dialog), "ExogValuesDialog");
                  if (byMouse)
                      return Click(fixture.Button(wxID_OK));
                  Press(WXK_RETURN);
                  Press('O', wxMOD_ALT);
              })
          == wxID_OK);
    Eigen::MatrixXd const values = fixture.dialog.GetValues();
    CHECK(values.topRows(1) == Eigen::RowVector2d(2.5, -3));
    CHECK(values(1, 0) == 1);
    CHECK(values(1, 1) == Approx(1234567).epsilon(1e-5));
}
