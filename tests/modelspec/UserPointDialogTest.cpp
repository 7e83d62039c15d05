#include "modelspec/UserPointDialog.h"

#include "modelspec/NotebookDialogChecks.h"
#include "modelspec/NumberGridChecks.h"
#include "modelspec/PriorGrid.h"

using namespace notebook_dialog_checks;
using namespace number_grid_checks;

namespace
{
std::vector<std::string> const THREE = {"constant", "educ", "Z\xC3\xBCrich"};

Eigen::VectorXd Point(double a, double b, double c) { return Eigen::Vector3d(a, b, c); }

/// A dialog for three names, and its grid.
struct Fixture
{
    Stage stage;
    std::vector<std::string> names = THREE;
    UserPointDialog dialog{stage.Frame(), names};
    PriorGrid* grid = Find<PriorGrid>(&dialog);

    /// Begins to type into a row and does not finish.
    void Type(int row, char const* text)
    {
        GoTo(grid, row, 0);
        TypeText(text);
        CHECK(IsEditing(grid));
    }

    wxWindow* Button(int id) { return dialog.FindWindow(id); }
};
} // namespace

TEST_CASE("point dialog: layout")
{
    Fixture fixture;
    Layout(fixture.dialog, "Define Point", "Variables");
    CHECK(fixture.dialog.GetParent() == fixture.stage.Frame());
    REQUIRE(fixture.grid);
    CHECK(fixture.grid->GetParent() == Find<wxNotebook>(&fixture.dialog));
    CHECK(fixture.grid->GetRowLabelSize() == 150);
    CHECK(RowLabels(fixture.grid) == Texts{"constant", "educ", wxString::FromUTF8("Z\xC3\xBCrich")});
    CHECK(Column(fixture.grid, 0) == Texts{"0", "0", "0"});
}

TEST_CASE("point dialog: a point begins at zero and can't be set from outside")
{
    Fixture fixture;
    CHECK(fixture.dialog.GetValues() == Point(0, 0, 0));
    Eigen::VectorXd values = Point(1, 2, 3);
    fixture.dialog.WriteValues(values);
    CHECK(fixture.dialog.GetValues() == Point(0, 0, 0));
    CHECK(values == Point(1, 2, 3));
}

TEST_CASE("point dialog: no names, no entries")
{
    Stage stage;
    std::vector<std::string> names;
    UserPointDialog dialog(stage.Frame(), names);
    CHECK(dialog.GetValues().size() == 0);
    CHECK(RunDialog(dialog, [] { Press(WXK_RETURN); }) == wxID_OK);
}

TEST_CASE("point dialog: the keyboard is on OK; Enter accepts, Escape and closing cancel")
{
    Fixture fixture;
    CHECK(RunDialog(fixture.dialog,
              [&]
              {
                  CHECK(fixture.Button(wxID_OK)->HasFocus());
                  CHECK(fixture.dialog.GetSize().x == 600);
                  Press(WXK_RETURN);
              })
          == wxID_OK);
    CHECK(RunDialog(fixture.dialog, [&] { Press(WXK_ESCAPE); }) == wxID_CANCEL);
    CHECK(RunDialog(fixture.dialog, [&] { fixture.dialog.Close(); }) == wxID_CANCEL);
    CHECK(RunDialog(fixture.dialog, [&] { Click(fixture.Button(wxID_CANCEL)); }) == wxID_CANCEL);
    CHECK(fixture.dialog.GetValues() == Point(0, 0, 0));
}

TEST_CASE("point dialog: typed values come back, and are there when it is shown again")
{
    Fixture fixture;
    CHECK(RunDialog(fixture.dialog,
              [&]
              {
                  GoTo(fixture.grid, 0, 0);
                  TypeText("1");
                  Press(WXK_RETURN);
                  TypeText("-2.5");
                  Press(WXK_RETURN);
                  Keep(Photograph(&fixture.dialog), "UserPointDialog");
                  Click(fixture.Button(wxID_OK));
              })
          == wxID_OK);
    CHECK(fixture.dialog.GetValues() == Point(1, -2.5, 0));
    CHECK(RunDialog(fixture.dialog,
              [&]
              {
                  CHECK(Column(fixture.grid, 0) == Texts{"1", "-2.5", "0"});
                  Press(WXK_ESCAPE);
              })
          == wxID_CANCEL);
}

TEST_CASE("point dialog: a number that is still being typed is not lost")
{
    Fixture fixture;
    SECTION("when OK is clicked")
    {
        CHECK(RunDialog(fixture.dialog,
                  [&]
                  {
                      fixture.Type(1, "1.75");
                      Click(fixture.Button(wxID_OK));
                  })
              == wxID_OK);
    }
    SECTION("when OK is pressed on the keyboard, which the editor keeps to itself before Enter")
    {
        CHECK(RunDialog(fixture.dialog,
                  [&]
                  {
                      fixture.Type(1, "1.75");
                      Press('O', wxMOD_ALT);
                      Pump(500);
                      CHECK(fixture.dialog.IsModal());
                      Press(WXK_RETURN);
                      Press('O', wxMOD_ALT);
                  })
              == wxID_OK);
    }
    SECTION("when the loop is ended from elsewhere")
    {
        CHECK(RunDialog(fixture.dialog,
                  [&]
                  {
                      fixture.Type(1, "1.75");
                      fixture.dialog.EndModal(wxID_OK);
                  })
              == wxID_OK);
    }
    CHECK(fixture.dialog.GetValues() == Point(0, 1.75, 0));
    CHECK_FALSE(IsEditing(fixture.grid));
}

TEST_CASE("point dialog: Enter in a cell ends the number and not the dialog, Escape leaves both")
{
    Fixture fixture;
    CHECK(RunDialog(fixture.dialog,
              [&]
              {
                  fixture.Type(0, "3");
                  Press(WXK_RETURN);
                  CHECK(fixture.dialog.IsModal());
                  fixture.Type(1, "4");
                  Press(WXK_ESCAPE);
              })
          == wxID_CANCEL);
    CHECK(fixture.dialog.GetValues()(0) == 3);
}
