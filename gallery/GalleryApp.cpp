// Shows every widget of the library alone.
//
// zenqo-gallery                      a list of all widgets; a double click shows one
// zenqo-gallery NAME                 shows that widget
// zenqo-gallery --list               prints the names, each behind its folder
// zenqo-gallery --photograph FOLDER  photographs them all into the folder

#include <clocale>
#include <iostream>
#include <memory>

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/image.h>
#include <wx/listbox.h>

#include "engine/Globals.h"
#include "gallery/Entry.h"
#include "gallery/Photographer.h"
#include "gallery/Shelf.h"

namespace
{
/// The window with the list of all widgets.
class GalleryFrame : public wxFrame
{
public:
    GalleryFrame(std::vector<Entry> entries, Shelf& shelf)
        : wxFrame(nullptr, wxID_ANY, "Zenqo gallery", wxDefaultPosition, wxSize(360, 600)),
          m_entries(std::move(entries)), m_shelf(shelf)
    {
        wxArrayString names;
        for (auto const& entry : m_entries)
            names.Add(entry.folder + "/" + entry.name);
        auto* const list = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, names);
        list->Bind(wxEVT_LISTBOX_DCLICK,
                   [this](wxCommandEvent& event)
                   { m_entries[static_cast<std::size_t>(event.GetSelection())].build(m_shelf)->Show(); });
    }

private:
    std::vector<Entry> m_entries;
    Shelf& m_shelf;
};

class GalleryApp : public wxApp
{
public:
    bool OnInit() override
    {
        std::setlocale(LC_ALL, "");
        std::setlocale(LC_NUMERIC, "C");
        wxInitAllImageHandlers();
        Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = ZENQO_SHARE;
        m_shelf = std::make_unique<Shelf>(ZENQO_SAMPLES);
        m_entries = AllEntries();

        std::vector<std::string> arguments;
        for (int i = 1; i < argc; ++i)
            arguments.push_back(argv[i].ToStdString(wxConvLibc));
        if (arguments.size() == 2 && arguments[0] == "--photograph")
            return Photograph(arguments[1]);
        if (arguments.size() == 1 && arguments[0] == "--list")
            return List();
        if (arguments.size() == 1)
            return ShowOne(arguments[0]);
        if (!arguments.empty())
            return Refuse("usage: zenqo-gallery [NAME | --list | --photograph FOLDER]");
        return (new GalleryFrame(m_entries, *m_shelf))->Show();
    }

    int OnRun() override { return m_done ? m_status : wxApp::OnRun(); }

private:
    bool Photograph(std::string const& folder)
    {
        SetExitOnFrameDelete(false);
        for (auto const& name : PhotographAll(m_entries, *m_shelf, folder))
        {
            std::cerr << "zenqo-gallery: no good picture of " << name << std::endl;
            m_status = 1;
        }
        return m_done = true;
    }

    bool List()
    {
        for (auto const& entry : m_entries)
            std::cout << entry.folder << "/" << entry.name << "\n";
        return m_done = true;
    }

    bool ShowOne(std::string const& name)
    {
        for (auto const& entry : m_entries)
            if (entry.name == name)
                return entry.build(*m_shelf)->Show();
        return Refuse("zenqo-gallery: there is no widget called " + name);
    }

    bool Refuse(std::string const& message)
    {
        std::cerr << message << std::endl;
        m_status = 2;
        return m_done = true;
    }

    std::unique_ptr<Shelf> m_shelf;
    std::vector<Entry> m_entries;
    bool m_done = false; ///< There is no window to wait for.
    int m_status = 0;
};
} // namespace

wxIMPLEMENT_APP(GalleryApp);
