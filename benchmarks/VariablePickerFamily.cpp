// How long the variable pickers take for thousands of variables.

#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/listbox.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "common/ListBoxItems.h"
#include "modelspec/VariablePicker_yX.h"
#include "modelspec/VariablePicker_yXZ.h"
#include "modelspec/VariablePicker_yZX2.h"

namespace benchmarks
{
namespace
{
std::vector<wxListBox*> ListsOf(wxWindow const* panel)
{
    std::vector<wxListBox*> lists;
    for (auto* const child : panel->GetChildren())
        if (auto* const list = dynamic_cast<wxListBox*>(child))
            lists.push_back(list);
    return lists;
}

/// The list in the picker's dataset row.
wxChoice* ChoiceOf(wxWindow const* panel)
{
    for (auto* const child : panel->GetChildren())
        for (auto* const grandchild : child->GetChildren())
            if (auto* const choice = dynamic_cast<wxChoice*>(grandchild))
                return choice;
    return nullptr;
}

/// Every other index below `count`.
std::vector<int> EveryOther(int count)
{
    std::vector<int> indices;
    for (int i = 0; i < count; i += 2)
        indices.push_back(i);
    return indices;
}

void SelectAll(wxListBox* list)
{
    std::vector<int> all;
    for (int i = 0; i < static_cast<int>(list->GetCount()); ++i)
        all.push_back(i);
    zenqo::SelectItems(list, all);
}

/// Two datasets of `count` variables each, in families of two behind the hidden variable.
DatasetMap TwoDatasets(int count)
{
    DatasetMap datasets;
    for (auto const* const name : {"a", "b"})
    {
        auto dataset = std::make_shared<Dataset>();
        dataset->varNames.Add("constant");
        for (int i = 0; i < count; ++i)
            dataset->varNames.Add(wxString::Format("%s%05d_%d", name, i / 2, i % 2));
        datasets[name] = dataset;
    }
    return datasets;
}

/// What goes from the left list when half of its names are moved.
enum class Leaving
{
    SELECTED,
    FAMILIES, ///< All names, as the selected ones take their families along.
    NONE,
};

/// A picker with its datasets, and the handlers of the role that is measured.
template <class Picker>
struct Subject
{
    using Handler = void (Picker::*)(wxCommandEvent&);

    template <class... Captions>
    Subject(wxFrame* frame, int count, std::size_t role, Captions... captions)
        : datasets(TwoDatasets(count)), picker(new Picker(frame, &datasets, 200, captions...)),
          left(ListsOf(picker)[0]), right(ListsOf(picker)[role + 1])
    {
    }

    /// What two presses take, of which the first moves every other variable to the right and the
    /// second moves all back.
    double ThereAndBack(Handler onSelected, Handler onPressed)
    {
        wxCommandEvent event;
        picker->OnAllVarSelected(event);
        zenqo::SelectItems(left, EveryOther(static_cast<int>(left->GetCount())));
        double seconds = Seconds([&] { (picker->*onPressed)(event); });
        (picker->*onSelected)(event);
        SelectAll(right);
        seconds += Seconds([&] { (picker->*onPressed)(event); });
        return seconds;
    }

    /// What a change to the other dataset takes.
    double Change()
    {
        auto* const choice = ChoiceOf(picker);
        choice->SetSelection(1 - choice->GetSelection());
        wxCommandEvent event;
        return Seconds([&] { picker->OnDatasetChanged(event); });
    }

    DatasetMap datasets;
    Picker* picker;
    wxListBox* left;
    wxListBox* right;
};

/// The calls without which no picker moves names, on two lists of its kind: what is selected is asked
/// for, read and appended, and the left list filled with what it shows then; and the way back.
class BareLists
{
public:
    BareLists(wxFrame* frame, wxArrayString const& names)
        : m_left(Make(frame)), m_right(Make(frame)), m_names(names)
    {
        m_left->Append(names);
    }

    double ThereAndBack(Leaving leaving)
    {
        zenqo::SelectItems(m_left, EveryOther(static_cast<int>(m_names.size())));
        double seconds = Seconds([&] { There(leaving); });
        SelectAll(m_right);
        seconds += Seconds([&] { Back(); });
        return seconds;
    }

    double Refill()
    {
        return Seconds(
            [&]
            {
                m_left->Clear();
                m_left->Append(m_names);
            });
    }

private:
    static wxListBox* Make(wxFrame* frame)
    {
        return new wxListBox(frame, wxID_ANY, wxDefaultPosition, wxSize(180, 200), 0, nullptr,
                             wxLB_EXTENDED | wxHSCROLL);
    }

    void There(Leaving leaving)
    {
        wxArrayInt selected;
        m_left->GetSelections(selected);
        wxArrayString moved;
        for (int const index : selected)
            moved.Add(m_left->GetString(static_cast<unsigned>(index)));
        m_right->Append(moved);
        if (leaving == Leaving::NONE)
            return;
        wxArrayString const before = m_left->GetStrings();
        m_left->Clear();
        if (leaving == Leaving::FAMILIES)
            return;
        wxArrayString kept;
        for (std::size_t i = 1; i < before.size(); i += 2)
            kept.Add(before[i]);
        m_left->Append(kept);
    }

    void Back()
    {
        wxArrayInt selected;
        m_right->GetSelections(selected);
        m_right->Clear();
        m_left->Clear();
        m_left->Append(m_names);
    }

    wxListBox* m_left;
    wxListBox* m_right;
    wxArrayString m_names;
};

/// One role of a picker: what its list and its button do.
template <class Picker>
struct RoleOf
{
    char const* name;
    Leaving leaving;
    std::size_t index;
    typename Subject<Picker>::Handler onSelected;
    typename Subject<Picker>::Handler onPressed;
};

template <class Picker, class... Captions>
void MeasureMoves(Table& table, wxFrame* frame, RoleOf<Picker> const& role, Captions... captions)
{
    Subject<Picker> few(frame, 10000, role.index, captions...);
    Subject<Picker> many(frame, 20000, role.index, captions...);
    BareLists bare(frame, few.left->GetStrings());
    auto const name = std::string(role.name);
    auto const move = [&] { return few.ThereAndBack(role.onSelected, role.onPressed); };
    table.Compare({name + ", half of 10,000: against bare lists", 2}, move,
                  [&] { return bare.ThereAndBack(role.leaving); });
    table.Compare({name + ", half of 20,000: against 10,000", 2.3},
                  [&] { return many.ThereAndBack(role.onSelected, role.onPressed); }, move);

    auto const change = [&] { return few.Change(); };
    table.Compare({name + ", change to 10,000: against a bare list", 2}, change,
                  [&] { return bare.Refill(); }, 15);
    table.Compare({name + ", change to 20,000: against 10,000", 2.3}, [&] { return many.Change(); },
                  change, 15);
    few.picker->Destroy();
    many.picker->Destroy();
}
} // namespace

void MeasureVariablePickers(Table& table)
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "Variable pickers");
    MeasureMoves<VariablePicker_yX>(table, frame,
                                    {"VariablePicker_yX", Leaving::SELECTED, 1,
                                     &VariablePicker_yX::OnIndVarSelected,
                                     &VariablePicker_yX::OnLowerButton});
    MeasureMoves<VariablePicker_yXZ>(table, frame,
                                     {"VariablePicker_yXZ", Leaving::NONE, 1,
                                      &VariablePicker_yXZ::OnIndVarXSelected,
                                      &VariablePicker_yXZ::OnLowerButton1},
                                     "X", "Z");
    MeasureMoves<VariablePicker_yZX2>(table, frame,
                                      {"VariablePicker_yZX2", Leaving::FAMILIES, 1,
                                       &VariablePicker_yZX2::OnIndVarZSelected,
                                       &VariablePicker_yZX2::OnLowerButton1},
                                      "Z", "X");
    frame->Destroy();
}
} // namespace benchmarks
