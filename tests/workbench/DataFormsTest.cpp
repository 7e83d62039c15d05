#include "workbench/app/DataForms.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dialog.h>
#include <wx/filepicker.h>
#include <wx/listbox.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "support/Find.h"
#include "support/ListClicks.h"
#include "support/ModalScript.h"
#include "support/Stage.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"

using workbench::Asked;

namespace
{
using Ask = Asked (*)(wxWindow* parent, DatasetMap& datasets, int shown);

DatasetMap Datasets()
{
    return {{"macro", workbench::MakeDataset({"gdp", "cpi", "rate"}, 3)},
            {"wages", workbench::MakeDataset({"wage", "educ", "age"}, 3)}};
}

/// Asks with "wages" shown, does `steps` in the dialog, and ends it with the button `end`.
Asked AskWith(Ask ask, std::function<void(wxDialog*)> const& steps, int end = wxID_OK)
{
    Stage stage;
    auto datasets = Datasets();
    ModalScript script;
    script.Then(
        [&](wxDialog* dialog)
        {
            dialog->CallAfter(
                [&, dialog]
                {
                    Pump(150);
                    steps(dialog);
                    Click(dialog->FindWindow(end));
                });
            return wxID_NONE;
        });
    return ask(stage.Frame(), datasets, 1);
}

/// Moves entry `index` of the left list to the role list by clicks.
void Choose(wxDialog* dialog, int index)
{
    ClickEntry(Find<wxListBox>(dialog), index);
    Click(Find<wxButton>(dialog));
}
} // namespace

TEST_CASE("the data dialogs compose statements for the dataset that is shown")
{
    CHECK(AskWith(workbench::AskSort,
                  [](wxDialog* dialog)
                  {
                      Choose(dialog, 2);
                      Choose(dialog, 0);
                  })
          == Asked("sort(wages, \"age wage\");"));
    CHECK(AskWith(workbench::AskDeleteVariables, [](wxDialog* dialog) { Choose(dialog, 1); })
          == Asked("drop(wages, \"educ\");"));
    CHECK(AskWith(workbench::AskSummarize, [](wxDialog* dialog) { Choose(dialog, 1); })
          == Asked("summarize(wages, \"educ\", \"available\");"));
    CHECK(AskWith(workbench::AskSummarize,
                  [](wxDialog* dialog)
                  {
                      Choose(dialog, 1);
                      Find<wxRadioBox>(dialog)->SetSelection(1);
                  })
          == Asked("summarize(wages, \"educ\", \"complete\");"));
    CHECK(AskWith(workbench::AskClearDataset, [](wxDialog*) {}) == Asked("clear(wages);"));
}

TEST_CASE("a plot's statement names its type")
{
    char const* const types[] = {"histogram", "scatter", "history", "density", "lines", "correlogram"};
    for (int type = 0; type < 6; ++type)
        CHECK(AskWith(workbench::AskPlot,
                      [type](wxDialog* dialog)
                      {
                          Choose(dialog, 0);
                          Choose(dialog, 0);
                          Find<wxRadioBox>(dialog)->SetSelection(type);
                      })
              == Asked("plot(wages, \"wage educ\", \"" + std::string(types[type]) + "\");"));
}

TEST_CASE("a new variable's statement has its name and its expression as they were typed")
{
    CHECK(AskWith(workbench::AskCreateVariable,
                  [](wxDialog* dialog)
                  {
                      Click(Find<wxTextCtrl>(dialog, 0));
                      TypeText("lwage");
                      Click(Find<wxTextCtrl>(dialog, 1));
                      TypeText("2*");
                      ClickEntry(Find<wxListBox>(dialog), 0);
                      Click(Find<wxButton>(dialog));
                  })
          == Asked("create(wages, \"lwage\", \"2*wages.wage\");"));
}

TEST_CASE("a structure's statement names the format, and empty names take the structure away")
{
    CHECK(AskWith(workbench::AskStructure, [](wxDialog*) {})
          == Asked("structure(wages, \"\", \"index\", \"\");"));
    char const* const formats[] = {"index", "yyyyqx", "yyyymxx", "yyyy/mm/dd"};
    for (int format = 0; format < 4; ++format)
        CHECK(AskWith(workbench::AskStructure,
                      [format](wxDialog* dialog)
                      {
                          Choose(dialog, 2);
                          ClickEntry(Find<wxListBox>(dialog), 0);
                          Click(Find<wxButton>(dialog, 1));
                          Find<wxChoice>(dialog, 1)->SetSelection(format);
                      })
              == Asked("structure(wages, \"age\", \"" + std::string(formats[format]) + "\", \"wage\");"));
}

TEST_CASE("an export replaces a file after a question only, and until then the dialog comes again")
{
    Stage stage;
    auto datasets = Datasets();
    Scratch scratch;
    auto const old = scratch.Write("old.csv", "old");
    auto const fresh = scratch.Path("fresh.csv");
    auto const accept = [](std::string const& path, int delimiter)
    {
        return [=](wxDialog* dialog)
        {
            Find<wxFilePickerCtrl>(dialog)->SetPath(path);
            Find<wxRadioBox>(dialog)->SetSelection(delimiter);
            return wxID_OK;
        };
    };
    std::string path;
    {
        ModalScript script;
        script.Then(accept(old, 1)).Then(wxID_NO).Then(accept(fresh, 2));
        CHECK(workbench::AskExport(stage.Frame(), datasets, 1, path)
              == Asked("export(wages, \"" + fresh + "\", \"\\t\");"));
        CHECK(path == fresh);
        auto const& question = script.Shown().at(1);
        CHECK(question.text == "old.csv exists. Replace it?");
        CHECK(question.caption == "Export Data");
        CHECK(question.style == (wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION));
        CHECK(question.parent == stage.Frame());
    }
    {
        ModalScript script;
        script.Then(accept(old, 1)).Then(wxID_YES);
        CHECK(workbench::AskExportMatrix(stage.Frame(), "A", path)
              == Asked("export(A, \"" + old + "\", \";\");"));
        CHECK(path == old);
        CHECK(script.Shown().at(1).caption == "Export Matrix A");
    }
    path.clear();
    ModalScript script;
    script.Then(accept(old, 0)).Then(wxID_NO).Then(wxID_CANCEL);
    CHECK(workbench::AskExportMatrix(stage.Frame(), "A", path) == Asked());
    CHECK(path.empty());
    CHECK(ReadFile(old) == "old");
}

TEST_CASE("a cancelled data dialog composes nothing")
{
    for (Ask const ask : {workbench::AskClearDataset, workbench::AskDeleteVariables,
                          workbench::AskCreateVariable, workbench::AskStructure, workbench::AskSort,
                          workbench::AskSummarize, workbench::AskPlot})
        CHECK(AskWith(ask, [](wxDialog*) {}, wxID_CANCEL) == Asked());
}
