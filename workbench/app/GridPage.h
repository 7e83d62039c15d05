#pragma once

#include <map>
#include <iterator>
#include <memory>
#include <string>

#include <wx/event.h>
#include <wx/string.h>

namespace workbench
{
/// Keeps one of the library's grids showing what the user expects: the object that came last, else
/// the one shown before, else the first; and nothing while its page is hidden.
///
/// `Grid` is DataGrid or MatrixGrid, `Object` what it shows.
template <class Grid, class Object> class GridPage
{
public:
    using Map = std::map<std::string, std::shared_ptr<Object>>;

    /// Both must outlive the page.
    GridPage(Grid& grid, Map& objects) : m_grid(grid), m_objects(objects)
    {
        m_grid.Bind(wxEVT_CHOICE,
                    [this](wxCommandEvent&)
                    {
                        m_shown = std::next(m_objects.begin(), m_grid.GetSelection())->first;
                        m_grid.ShowData(*m_objects.at(m_shown));
                    });
    }

    /// The map has changed; `before` is the map as it was.
    void OnChanged(Map const& before)
    {
        for (auto const& [name, object] : m_objects)
        {
            auto const old = before.find(name);
            if (old == before.end() || old->second != object)
                m_shown = name;
        }
        m_stale = true;
    }

    /// Shows the object called `name`, if there is one, when the page is next drawn.
    void Choose(std::string const& name)
    {
        m_shown = name;
        m_stale = true;
    }

    /// Draws the page if what it shows is out of date. To be called when the page is on the screen.
    void Draw()
    {
        if (!m_stale)
            return;
        m_stale = false;
        if (m_objects.count(m_shown) == 0)
        {
            m_grid.Update(&m_objects);
            if (m_objects.empty())
                m_grid.Clear();
            m_shown = m_objects.empty() ? std::string() : m_objects.begin()->first;
            return;
        }
        m_grid.Clear();
        m_grid.UpdateChoices(&m_objects);
        wxString name(m_shown.c_str(), wxConvLibc);
        m_grid.SetChoice(name);
        m_grid.ShowData(*m_objects.at(m_shown));
    }

    /// The name of the object that the grid shows, or will show; empty if there is none.
    std::string const& Shown() const { return m_shown; }

private:
    Grid& m_grid;
    Map& m_objects;
    std::string m_shown;
    bool m_stale = true;
};
} // namespace workbench
