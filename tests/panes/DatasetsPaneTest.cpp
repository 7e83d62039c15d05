#include "panes/DatasetsPane.h"

#include <wx/button.h>
#include <wx/filefn.h>
#include <wx/radiobox.h>
#include <wx/settings.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include "dialogs/data/ImportDataDialog.h"
#include "engine/Events.h"
#include "support/Find.h"
#include "support/ModalScript.h"
#include "support/Stage.h"

namespace
{
std::shared_ptr<Dataset> Variables(std::initializer_list<char const*> names)
{
    auto dataset = std::make_shared<Dataset>();
    for (auto const* name : names)
        dataset->varNames.Add(wxString::FromUTF8(name));
    return dataset;
}

/// The tree as text: "a(x y) b()".
wxString Drawn(wxTreeCtrl* tree)
{
    wxString text;
    wxTreeItemIdValue cookie;
    auto const root = tree->GetRootItem();
    for (auto item = tree->GetFirstChild(root, cookie); item.IsOk(); item = tree->GetNextSibling(item))
    {
        text += (text.empty() ? "" : " ") + tree->GetItemText(item) + "(";
        wxTreeItemIdValue inner;
        wxString leaves;
        for (auto leaf = tree->GetFirstChild(item, inner); leaf.IsOk(); leaf = tree->GetNextSibling(leaf))
            leaves += (leaves.empty() ? "" : " ") + tree->GetItemText(leaf);
        text += leaves + ")";
    }
    return text;
}

/// A stage whose frame collects the scripts that the pane sends.
struct DropStage : Stage
{
    DropStage() : pane(new DatasetsPane(Frame()))
    {
        Fill(pane);
        Frame()->Bind(wxEVT_PRINT_AND_RUN,
                      [this](wxCommandEvent& event)
                      {
                          CHECK(event.GetId() == 0);
                          scripts.push_back(event.GetString());
                      });
    }

    void Drop(std::vector<wxString> paths)
    {
        // The event takes an array over and deletes it.
        auto* const files = new wxString[paths.size() + 1];
        std::copy(paths.begin(), paths.end(), files);
        wxDropFilesEvent event(wxEVT_DROP_FILES, static_cast<int>(paths.size()), files);
        event.SetEventObject(pane->GetTreeCrtl());
        pane->GetTreeCrtl()->ProcessWindowEvent(event);
    }

    DatasetsPane* pane;
    std::vector<wxString> scripts;
};

void CheckRefusal(std::vector<wxString> const& paths, wxString const& text)
{
    DropStage stage;
    ModalScript script;
    script.Then(wxID_OK);
    stage.Drop(paths);
    REQUIRE(script.Shown().size() == 1);
    CHECK(script.Shown()[0].text == text);
    CHECK(script.Shown()[0].caption == "Warning");
    CHECK(script.Shown()[0].style == (wxOK | wxICON_EXCLAMATION));
    CHECK(script.Shown()[0].parent == stage.Frame()); // A box over a panel belongs to its window.
    CHECK(stage.scripts.empty());
}

ModalScript::Answer Accept(wxString const& name, int delimiter)
{
    return [=](wxDialog* dialog)
    {
        Find<wxTextCtrl>(dialog)->SetValue(name);
        Find<wxRadioBox>(dialog)->SetSelection(delimiter);
        return wxID_OK;
    };
}
} // namespace

TEST_CASE("datasets pane: layout")
{
    Stage stage;
    auto* const pane = new DatasetsPane(stage.Frame());
    auto* const tree = pane->GetTreeCrtl();
    CHECK(pane->GetSize() == wxSize(200, 300));
    CHECK(pane->HasFlag(wxTAB_TRAVERSAL));
    CHECK(pane->HasFlag(wxBORDER_NONE));
    CHECK(tree->GetParent() == pane);
    CHECK((tree->GetWindowStyle() & 0xffff) == 2089);
    CHECK(tree->GetBackgroundColour() == wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
    CHECK(tree->GetFont() == wxFont(wxFontInfo(10).Family(wxFONTFAMILY_MODERN)));
    CHECK(PlacementOf(Item(pane->GetSizer(), 0)) == Placement{1, wxEXPAND, 0});
    CHECK(tree->IsEmpty());
    CHECK_FALSE(tree->GetRootItem().IsOk());
}

TEST_CASE("datasets pane: an update draws the map, all branches expanded")
{
    Stage stage(wxSize(300, 500));
    auto* const pane = new DatasetsPane(stage.Frame());
    stage.Fill(pane);
    auto* const tree = pane->GetTreeCrtl();
    DatasetMap map;
    map["us_macro"] = Variables({"_", "gdp", "inflation", "unemployment", "fed_funds"});
    map["__ZenqoEmptyDataset__"] = Variables({"_", "x"});
    map["Wages"] = Variables({"_", "lwage", "educ", "exper"});
    map["unnamed"] = Variables({"", "x"});
    map["nameless"] = Variables({});
    map["hidden_only"] = Variables({"_"});
    map["donn\xc3\xa9" "es"] = Variables({"_", "été", ""});
    pane->Update(&map);

    CHECK(Drawn(tree)
          == wxString::FromUTF8("Wages(lwage educ exper) données(été ) hidden_only() "
                                "us_macro(gdp inflation unemployment fed_funds)"));
    CHECK(tree->GetItemText(tree->GetRootItem()) == "DATASET_PANE_ROOT_HIDDEN");
    wxTreeItemIdValue cookie;
    for (auto item = tree->GetFirstChild(tree->GetRootItem(), cookie); item.IsOk();
         item = tree->GetNextSibling(item))
        CHECK(tree->IsExpanded(item) == tree->HasChildren(item));
    for (auto const& [key, dataset] : map)
        CHECK(dataset->name == wxString::FromUTF8(key));
    Keep(Photograph(stage.Frame()), "DatasetsPane");

    map.erase("Wages");
    pane->Update(&map);
    CHECK_FALSE(Drawn(tree).Contains("Wages"));
    map.clear();
    pane->Update(&map);
    CHECK(Drawn(tree).empty());
    CHECK(tree->GetItemText(tree->GetRootItem()) == "DATASET_PANE_ROOT_HIDDEN");
    CHECK(tree->GetCount() == 0); // The hidden root does not count.
    pane->Update();
}

TEST_CASE("datasets pane: a dataset drawn alone is appended and expanded")
{
    Stage stage;
    auto* const pane = new DatasetsPane(stage.Frame());
    stage.Fill(pane);
    auto* const tree = pane->GetTreeCrtl();
    auto a = Variables({"_", "x", "y"});
    a->name = "a";
    pane->DrawTree(*a);
    CHECK(tree->GetItemText(tree->GetRootItem()) == "DATASET_PANE_ROOT_HIDDEN");
    CHECK(Drawn(tree) == "a(x y)");
    tree->CollapseAll();
    auto b = Variables({"_", "z"});
    b->name = "b";
    pane->DrawTree(*b);
    CHECK(Drawn(tree) == "a(x y) b(z)");
    CHECK(tree->IsExpanded(tree->GetLastChild(tree->GetRootItem())));
    CHECK(tree->IsExpanded(tree->GetPrevSibling(tree->GetLastChild(tree->GetRootItem()))));

    auto placeholder = Variables({"_", "x"});
    placeholder->name = "__ZenqoEmptyDataset__";
    pane->DrawTree(*placeholder);
    pane->DrawTree(*Variables({"", "x"}));
    tree->CollapseAll();
    pane->DrawTree(*Variables({}));
    CHECK(Drawn(tree) == "a(x y) b(z)");
    CHECK_FALSE(tree->IsExpanded(tree->GetLastChild(tree->GetRootItem())));
}

TEST_CASE("datasets pane: a skipped dataset drawn alone on an empty tree")
{
    Stage stage;
    auto* const pane = new DatasetsPane(stage.Frame());
    stage.Fill(pane);
    pane->DrawTree(*Variables({"", "x"}));
    Pump();
    CHECK(pane->GetTreeCrtl()->GetCount() == 0);
}

TEST_CASE("datasets pane: drops that are refused")
{
    SECTION("a folder, also among other files")
    {
        wxString const text = "The Datasets pane cannot accept folders\ndropped to it.\n\n"
                              "Drag and drop only single files.";
        CheckRefusal({"/tmp"}, text);
        CheckRefusal({"/tmp", "/data/a.csv"}, text);
    }
    SECTION("several files")
    {
        CheckRefusal({"/data/a.csv", "/data/b.csv"},
                     "The Datasets pane cannot accept mutliple\nfiles dropped to it.\n\n"
                     "Drag and drop only single files.");
    }
    SECTION("other extensions, capitals among them")
    {
        for (char const* path : {"/data/a.CSV", "/data/a.Txt", "/data/a.xls", "/data/csv", "/data/a.csv.gz",
                                 "/data/.csv"})
            CheckRefusal({path}, "The Datasets pane can only accept\ntext files (\".csv\" or \".txt\").");
    }
    SECTION("nothing at all is ignored")
    {
        DropStage stage;
        stage.Drop({});
        CHECK(stage.scripts.empty());
    }
}

TEST_CASE("datasets pane: a dropped file becomes an import command")
{
    DropStage stage;
    ModalScript script;
    wxString proposal;
    script.Then(
        [&](wxDialog* dialog)
        {
            CHECK(dynamic_cast<ImportDataDialog*>(dialog));
            proposal = Find<wxTextCtrl>(dialog)->GetValue();
            return wxID_OK;
        });
    stage.Drop({"/data/us macro.2020.csv"});
    CHECK(proposal == "us_macro_2020");
    REQUIRE(stage.scripts.size() == 1);
    CHECK(stage.scripts[0] == "us_macro_2020 = import(\"/data/us macro.2020.csv\", \",\");");

    script.Then(Accept("w", 1));
    stage.Drop({"/data/wages.txt"});
    CHECK(stage.scripts.back() == "w = import(\"/data/wages.txt\", \";\");");

    script.Then(Accept("w2", 2));
    stage.Drop({"/data/wages.txt"});
    CHECK(stage.scripts.back() == "w2 = import(\"/data/wages.txt\", \"\\t\");");

    script.Then(Accept("q", 0));
    stage.Drop({wxString::FromUTF8("/data/\"données\".csv")});
    CHECK(stage.scripts.back() == wxString::FromUTF8("q = import(\"/data/\"données\".csv\", \",\");"));
    CHECK(script.Shown().size() == 4);
    CHECK(script.Shown()[0].caption == "Import Data");
}

TEST_CASE("datasets pane: the import dialog cancelled, or left with a bad name")
{
    DropStage stage;
    ModalScript script;
    script.Then(wxID_CANCEL);
    stage.Drop({"/data/wages.csv"});
    CHECK(script.Shown().size() == 1);

    auto const bad = GENERATE("2wages", "", "a-b", "wages!");
    script.Then(Accept(bad, 0)).Then(wxID_OK);
    stage.Drop({"/data/wages.csv"});
    REQUIRE(script.Shown().size() == 3);
    auto const& warning = script.Shown()[2];
    CHECK(warning.text
          == "The dataset name must not contain spaces\nor special characters and it must not begin\n"
             "with a number.");
    CHECK(warning.caption == "Warning");
    CHECK(warning.style == (wxOK | wxICON_INFORMATION));
    CHECK(warning.parent == stage.Frame());
    CHECK(stage.scripts.empty());

    Pump();
    CHECK(Find<ImportDataDialog>(stage.Frame()) == nullptr);
}

TEST_CASE("datasets pane: a drop answered by hand")
{
    DropStage stage;
    ModalScript script;
    script.Then(
        [](wxDialog* dialog)
        {
            dialog->CallAfter(
                [dialog]
                {
                    PumpUntil([&] { return dialog->IsActive(); });
                    Pump(150);
                    Press('A', wxMOD_CONTROL);
                    TypeText("panel_x");
                    Click(dialog->FindWindow(wxID_OK));
                });
            return wxID_NONE;
        });
    stage.Drop({"/data/wages.csv"});
    REQUIRE(stage.scripts.size() == 1);
    CHECK(stage.scripts[0] == "panel_x = import(\"/data/wages.csv\", \",\");");
}

TEST_CASE("datasets pane: the host finds the updated tree when the command has run")
{
    DropStage stage;
    DatasetMap map;
    stage.Frame()->Bind(wxEVT_PRINT_AND_RUN,
                        [&](wxCommandEvent& event)
                        {
                            map["wages"] = Variables({"_", "lwage"});
                            stage.pane->Update(&map);
                            event.Skip();
                        });
    ModalScript script;
    script.Then(wxID_OK);
    stage.Drop({"/data/wages.csv"});
    CHECK(stage.scripts.size() == 1);
    CHECK(Drawn(stage.pane->GetTreeCrtl()) == "wages(lwage)");
}
