#include <wx/frame.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "modelspec/Calculator.h"
#include "modelspec/ExogValuesDialog.h"
#include "modelspec/ExogValuesGrid.h"
#include "modelspec/LagsPicker.h"
#include "modelspec/PriorDialog.h"
#include "modelspec/PriorGrid.h"
#include "modelspec/PriorGridSym.h"
#include "modelspec/PriorGridVecMat.h"
#include "modelspec/PriorPicker.h"
#include "modelspec/PriorProbGrid.h"
#include "modelspec/PriorProbPicker.h"
#include "modelspec/UserPointDialog.h"
#include "modelspec/VariablePickerMark.h"

namespace
{
/// The lags of half a year of months, and of the same month the year before.
wxTopLevelWindow* Lags()
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const picker = new LagsPicker(frame);
            auto const add = [picker](int from, int to)
            {
                int const values[] = {from, to};
                int next = 0;
                for (auto* const child : picker->GetChildren())
                    if (auto* const spin = dynamic_cast<wxSpinCtrl*>(child))
                        spin->SetValue(values[next++]);
                wxCommandEvent press;
                picker->OnButton(press);
            };
            add(2, 6);
            add(12, 12);
            return picker;
        });
}

wxTopLevelWindow* Mark(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const picker = new VariablePickerMark(frame, &shelf.datasets);
            SelectInFirstList(picker, {5});
            wxCommandEvent event;
            picker->OnUpperButton(event);
            return picker;
        });
}

/// With the user's own prior, which can be defined.
template <class Picker>
wxTopLevelWindow* OwnPrior()
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const picker = new Picker(frame);
            // The second of the two radio buttons.
            Choose(dynamic_cast<wxRadioButton*>(picker->GetChildren()[1]), wxEVT_RADIOBUTTON);
            return picker;
        });
}

/// A linear model of employment, as the sample data suggest a prior for it.
struct Employment
{
    explicit Employment(Shelf const& shelf) : posterior(Regress(*shelf.datasets.at("longley"), "TOTEMP"))
    {
        for (auto const& name : posterior.names)
            names.Add(wxString::FromUTF8(name));
        precision = posterior.moments.col(1).array().inverse().square().matrix().asDiagonal();
    }

    Posterior posterior;
    wxArrayString names;
    Eigen::MatrixXd precision;
};

wxTopLevelWindow* Means(Shelf& shelf)
{
    Employment const model(shelf);
    return FrameAround([&](wxFrame* frame)
                       { return new PriorGrid(frame, model.names, model.posterior.moments); },
                       wxSize(300, 200));
}

wxTopLevelWindow* Precision(Shelf& shelf)
{
    Employment const model(shelf);
    return FrameAround([&](wxFrame* frame) { return new PriorGridSym(frame, model.names, model.precision); },
                       wxSize(700, 200));
}

wxTopLevelWindow* Form(Shelf& shelf)
{
    Employment model(shelf);
    model.names.Add("a_name_that_is_too_long");
    return FrameAround(
        [&](wxFrame* frame)
        {
            auto* const grid = new PriorGridVecMat(frame, model.names, {});
            for (int i = 0; i < 3; ++i)
            {
                grid->SetCellValue(i + 2, 1, "0");
                for (int j = 0; j < 3; ++j)
                    grid->SetCellValue(i + 2, j + 4, i == j ? "0.01" : "0");
            }
            return grid;
        },
        wxSize(1000, 260));
}

wxTopLevelWindow* Probabilities(Shelf& shelf)
{
    wxArrayString names;
    for (auto const& entry : shelf.models)
        names.Add(wxString::FromUTF8(entry.first));
    auto const count = static_cast<Eigen::Index>(names.size());
    Eigen::MatrixXd const equal = Eigen::MatrixXd::Constant(count, 1, 1.0 / static_cast<double>(count));
    return FrameAround([&](wxFrame* frame) { return new PriorProbGrid(frame, names, equal); },
                       wxSize(320, 100));
}

/// What the forecast of two years of the sample data could be asked for.
std::vector<std::string> const EXOGENOUS = {"GNPDEFL", "GNP", "UNEMP"};

Eigen::MatrixXd Years()
{
    return (Eigen::MatrixXd(2, 3) << 118.2, 571432, 4217, 119.75, 588901, 4325.5).finished();
}

wxTopLevelWindow* Future(Shelf&)
{
    wxArrayString names;
    for (auto const& name : EXOGENOUS)
        names.Add(name);
    return FrameAround([&](wxFrame* frame) { return new ExogValuesGrid(frame, 2, names, Years()); },
                       wxSize(320, 80));
}

wxTopLevelWindow* FutureDialog(Shelf&)
{
    auto names = EXOGENOUS;
    auto* const dialog = new ExogValuesDialog(nullptr);
    dialog->DrawGrid(2, names, Years());
    return dialog;
}

wxTopLevelWindow* Point(Shelf& shelf)
{
    auto names = Regress(*shelf.datasets.at("longley"), "TOTEMP").names;
    return new UserPointDialog(nullptr, names);
}

/// The keypad below the field into which it types.
wxTopLevelWindow* Keypad(Shelf&)
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const panel = new wxPanel(frame);
            auto* const field = new wxTextCtrl(panel, wxID_ANY, "log( wage ) - 0.5.*");
            auto* const sizer = new wxBoxSizer(wxVERTICAL);
            sizer->Add(field, 0, wxEXPAND | wxALL, 5);
            sizer->Add(new Calculator(panel, field), 1, wxEXPAND | wxALL, 5);
            panel->SetSizer(sizer);
            return panel;
        });
}

/// The whole prior of the model, one page for each of its parts.
wxTopLevelWindow* WholePrior(Shelf& shelf)
{
    Employment const model(shelf);
    wxString title = "Prior of linear_employment";
    auto* const dialog = new PriorDialog(
        nullptr, title,
        "The coefficients are <b>normal</b> with these means and this precision. The precision of the "
        "error term, tau, follows a Gamma distribution, whose mean is shape over rate.");
    auto* const pages = dialog->GetNotebook();
    pages->AddPage(new PriorGrid(pages, model.names, model.posterior.moments), "Means");
    pages->AddPage(new PriorGridSym(pages, model.names, model.precision), "Precision");
    wxArrayString tau;
    tau.Add("shape");
    tau.Add("rate");
    pages->AddPage(new PriorGrid(pages, tau, Eigen::Vector2d(0.001, 0.001)), "tau");
    return dialog;
}
} // namespace

std::vector<Entry> ModelSpecEntries()
{
    return {
        {"modelspec", "LagsPicker", [](Shelf&) { return Lags(); }},
        {"modelspec", "PriorPicker", [](Shelf&) { return OwnPrior<PriorPicker>(); }},
        {"modelspec", "PriorProbPicker", [](Shelf&) { return OwnPrior<PriorProbPicker>(); }},
        {"modelspec", "VariablePickerMark", Mark},
        {"modelspec", "PriorDialog", WholePrior},
        {"modelspec", "PriorGrid", Means},
        {"modelspec", "PriorProbGrid", Probabilities},
        {"modelspec", "PriorGridSym", Precision},
        {"modelspec", "PriorGridVecMat", Form},
        {"modelspec", "UserPointDialog", Point},
        {"modelspec", "ExogValuesGrid", Future},
        {"modelspec", "ExogValuesDialog", FutureDialog},
        {"modelspec", "Calculator", Keypad},
    };
}
