// Another program's window, for tests of drag and drop between processes.
//
// zenqo-drag-source FILE ...     a window titled "Drag source" from which the files can be dragged
// zenqo-drag-source --receive    a window titled "Drop target" that prints what is dropped on it,
//                                one path on each line, and an empty line after each drop

#include <clocale>
#include <cstdio>

#include <wx/app.h>
#include <wx/dataobj.h>
#include <wx/dnd.h>
#include <wx/event.h>
#include <wx/frame.h>
#include <wx/panel.h>

namespace
{
void DragOnMotion(wxWindow* window, wxArrayString const& files)
{
    // A press and the first movement after it begin the drag, as in a file manager.
    window->Bind(wxEVT_MOTION, [window, files](wxMouseEvent& event) {
        if (!event.Dragging() || !event.LeftIsDown())
            return;
        wxFileDataObject data;
        for (auto const& file : files)
            data.AddFile(file);
        wxDropSource(data, window).DoDragDrop(wxDrag_CopyOnly);
    });
}

void PrintDrops(wxWindow* window)
{
    window->DragAcceptFiles(true);
    window->Bind(wxEVT_DROP_FILES, [](wxDropFilesEvent& event) {
        for (int i = 0; i < event.GetNumberOfFiles(); ++i)
            std::printf("%s\n", static_cast<char const*>(event.GetFiles()[i].utf8_str()));
        std::printf("\n");
        std::fflush(stdout);
    });
}

class DragSourceApp : public wxApp
{
public:
    bool OnInit() override
    {
        std::setlocale(LC_ALL, "");
        std::setlocale(LC_NUMERIC, "C");

        wxArrayString files;
        for (int i = 1; i < argc; ++i)
            files.Add(argv[i]);
        bool const receives = files.size() == 1 && files[0] == "--receive";
        if (files.empty())
            return false;

        auto* const frame = new wxFrame(nullptr, wxID_ANY, receives ? "Drop target" : "Drag source",
                                        wxDefaultPosition, wxSize(200, 120));
        auto* const panel = new wxPanel(frame);
        if (receives)
            PrintDrops(panel);
        else
            DragOnMotion(panel, files);
        return frame->Show();
    }
};
} // namespace

wxIMPLEMENT_APP(DragSourceApp);
