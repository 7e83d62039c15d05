#pragma once

#include "dialogs/external/ProgramChecks.h"
#include "support/AsciiLocale.h"

/// What the dialogs for scripts of other programs have in common, checked for each of them.
namespace script_checks
{
using namespace program_checks;

/// The words of one program, in UTF-8.
struct Words
{
    char const* title;
    char const* scriptBox;
    char const* scriptLabel;
    char const* outputBox;
    char const* inputBox;
    char const* inputExample;
    char const* complaint;
};

template <class Dialog>
struct Fixture
{
    Stage stage;
    Dialog dialog{stage.Frame()};
    wxTextCtrl* script = Find<wxTextCtrl>(ScriptOf(&dialog));
    wxWindow* browse = Find<wxButton>(ScriptOf(&dialog));
    wxTextCtrl* output = TextOf(&dialog, 0);
    wxTextCtrl* input = TextOf(&dialog, 1);
    wxWindow* run = dialog.FindWindow(wxID_OK);
};

/// The boxes from top to bottom; between the script and the items there may be others.
template <class Dialog>
wxSizer* CheckBoxes(Dialog const& dialog, Words const& words, std::size_t between)
{
    auto const wide = [](char const* text) { return wxString::FromUTF8(text); };
    auto* const sizer = CheckFrame(dialog, wide(words.title), 4 + between, STYLE);
    CheckScript(CheckBoxAround(Item(sizer, 0), wide(words.scriptBox), {0, wxEXPAND | wxALL, 5}),
                wide(words.scriptLabel), 500);
    Placement const below{1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5};
    CheckTexts(CheckBoxAround(Item(sizer, 1 + between), wide(words.outputBox), below),
               "mat1, mat2, mydataset, ...", wxSize(500, 70));
    CheckTexts(CheckBoxAround(Item(sizer, 2 + between), wide(words.inputBox), below),
               words.inputExample, wxSize(500, 70));
    CheckRunAndCancel(Item(sizer, 3 + between), dialog);
    return sizer;
}

/// Nothing but the script is asked for, and it need not exist.
template <class Dialog>
void OnlyAScript(Words const& words)
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    auto const complaint = wxString::FromUTF8(words.complaint);
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CHECK(fixture.run->HasFocus());
                                     CheckRefused(dialog, complaint, [] { Press(WXK_RETURN); });
                                     Click(fixture.output);
                                     TypeText("a");
                                     CheckRefused(dialog, complaint, [&] { Click(fixture.run); });
                                     fixture.output->Clear();
                                     Click(fixture.script);
                                     TypeText("x.y");
                                     Press(WXK_RETURN);
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetScript() == "x.y");
    CHECK(dialog.GetOutputData().empty());
    CHECK(dialog.GetInputData().empty());
}

/// The upper field is what leaves the application.
template <class Dialog>
void UpperGoesOut()
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetScript().empty());
    CHECK(dialog.GetOutputData().empty());
    CHECK(dialog.GetInputData().empty());
    RunDialog(dialog,
              [&]
              {
                  CHECK(fixture.output->GetScreenPosition().y < fixture.input->GetScreenPosition().y);
                  Click(fixture.output);
                  TypeText("a, b");
                  Press(WXK_RETURN);
                  TypeText("c");
                  Click(fixture.input);
                  TypeText(" d");
                  CHECK(dialog.GetOutputData() == "a, b\nc");
                  CHECK(dialog.GetInputData() == " d");
                  dialog.EndModal(wxID_CANCEL);
              });
}

/// Names as no one should give them.
template <class Dialog>
void OddScripts(Words const& words)
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    RunDialog(dialog,
              [&]
              {
                  for (auto const* path : {" ", "/nowhere/at all.txt", "\xCE\xB2.m", "a\"b'c"})
                  {
                      CAPTURE(path);
                      fixture.script->SetValue(wxString::FromUTF8(path));
                      CHECK(Accepts(dialog));
                      CHECK(dialog.GetScript() == path);
                  }
                  // What has no narrow form names no file.
                  AsciiLocale const ascii;
                  fixture.script->SetValue(wxString::FromUTF8("\xCE\xB2.m"));
                  CheckRefused(dialog, wxString::FromUTF8(words.complaint),
                               [&] { CHECK(!Accepts(dialog)); });
                  dialog.EndModal(wxID_CANCEL);
              });
}

template <class Dialog>
void Tabs(bool hasOptions)
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    std::vector<wxWindow*> controls{fixture.script, fixture.browse};
    if (hasOptions)
        controls.push_back(Find<wxTextCtrl>(&dialog, 1));
    for (std::size_t const n : {0, 1})
        controls.push_back(TextOf(&dialog, n));
    controls.push_back(dialog.FindWindow(wxID_CANCEL));
    controls.push_back(fixture.run);
    RunDialog(dialog,
              [&]
              {
                  CHECK(TabOrder(fixture.script) == controls);
                  dialog.EndModal(wxID_CANCEL);
              });
}

/// Deleted in order, and while a field is edited.
template <class Dialog>
void Deleted()
{
    CheckDeleted<Dialog>(
        [](Dialog* dialog)
        {
            return std::vector<wxWindow*>{Find<TextPicker>(dialog, 0), Find<TextPicker>(dialog, 1),
                                          Find<ScriptPicker>(dialog), dialog->FindWindow(wxID_OK)};
        },
        [](Dialog* dialog)
        {
            Click(TextOf(dialog, 1));
            TypeText("a");
            CHECK(dialog->GetInputData() == "a");
            CHECK(TextOf(dialog, 1)->HasFocus());
        });
}

/// All of these for one dialog; the layout is checked by the dialog's own test.
template <class Dialog>
void CheckAll(Words const& words, bool hasOptions = false)
{
    SECTION("a script is asked for, and nothing else") { OnlyAScript<Dialog>(words); }
    SECTION("the upper field is what goes out") { UpperGoesOut<Dialog>(); }
    SECTION("odd scripts") { OddScripts<Dialog>(words); }
    SECTION("Escape, Cancel and closing the window cancel")
    {
        Fixture<Dialog> fixture;
        CheckWaysOut(fixture.dialog);
    }
    SECTION("the Tab key goes from top to bottom") { Tabs<Dialog>(hasOptions); }
    SECTION("it goes in order, also while it is used") { Deleted<Dialog>(); }
}
} // namespace script_checks
