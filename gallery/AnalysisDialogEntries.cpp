#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>

#include "dialogs/analysis/CompareModelsDialog.h"
#include "dialogs/analysis/PlotDrawsDialog.h"
#include "dialogs/analysis/TestParametersDialog.h"
#include "gallery/Entry.h"
#include "pickers/DrawsPicker.h"
#include "pickers/ModelPickerPMP.h"

namespace
{
std::shared_ptr<Model> Equation(std::vector<std::string> regressors, double logML)
{
    auto model = std::make_shared<Model>();
    model->drawNames = std::move(regressors);
    model->drawNames.push_back("tau");
    model->results["logML"] = Eigen::MatrixXd::Constant(1, 1, logML);
    return model;
}

/// Wage equations with more and more regressors. The dialogs read them as long as they are shown.
ModelMap* Wages()
{
    static ModelMap models{
        {"wage_mincer", Equation({"constant", "educ", "exper", "exper_sq"}, -1284.6)},
        {"wage_region", Equation({"constant", "educ", "exper", "exper_sq", "south", "urban"}, -1290.3)},
        {"wage_schooling", Equation({"constant", "educ"}, -1341.9)},
        {"wage_tenure", Equation({"constant", "educ", "exper", "exper_sq", "tenure"}, -1272.2)}};
    return &models;
}

wxTopLevelWindow* Restrictions()
{
    auto* const dialog = new TestParametersDialog(nullptr, Wages());
    auto* const box = In<wxStaticBox>(dialog);
    auto* const left = In<wxTextCtrl>(box);
    // The choice of the operator and a button stand between the two sides.
    auto* const relation = In<wxChoice>(box);
    auto* const right = dynamic_cast<wxTextCtrl*>(relation->GetNextSibling()->GetNextSibling());
    auto const add = [=](char const* lhs, int index, char const* rhs)
    {
        left->SetValue(lhs);
        relation->SetSelection(index);
        right->SetValue(rhs);
        wxCommandEvent press;
        dialog->OnAddButton(press);
    };
    add("wage_mincer.educ", 0, "0");
    add("wage_mincer.exper", 1, "-2*wage_mincer.exper_sq");
    relation->SetSelection(4);
    left->SetValue("wage_mincer.exper_sq");
    right->SetValue("0");
    SelectInFirstList(box, {3});
    return dialog;
}

wxTopLevelWindow* Comparison()
{
    auto* const dialog = new CompareModelsDialog(nullptr, Wages());
    auto* const models = In<ModelPickerPMP>(In<wxStaticBox>(dialog));
    SelectInFirstList(models, {0, 1, 3});
    wxCommandEvent press;
    models->OnMoveButton(press);
    auto* const define = dialog->FindWindow(6022);
    Choose(dynamic_cast<wxRadioButton*>(define->GetPrevSibling()), wxEVT_RADIOBUTTON);
    In<wxRadioBox>(dialog)->SetSelection(1);
    return dialog;
}

wxTopLevelWindow* PlotOfDraws()
{
    auto* const dialog = new PlotDrawsDialog(nullptr, Wages());
    dialog->SetSelection(3);
    auto* const draws = In<DrawsPicker>(In<wxStaticBox>(dialog));
    SelectInFirstList(draws, {1, 4});
    wxCommandEvent press;
    draws->OnMoveButton(press);
    In<wxRadioBox>(dialog)->SetSelection(3);
    return dialog;
}
} // namespace

std::vector<Entry> AnalysisDialogEntries()
{
    return {
        {"dialogs/analysis", "CompareModelsDialog", [](Shelf&) { return Comparison(); }},
        {"dialogs/analysis", "PlotDrawsDialog", [](Shelf&) { return PlotOfDraws(); }},
        {"dialogs/analysis", "TestParametersDialog", [](Shelf&) { return Restrictions(); }},
    };
}
