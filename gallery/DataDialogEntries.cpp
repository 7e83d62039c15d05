#include "dialogs/data/ExportDataDialog.h"
#include "dialogs/data/ImportDataDialog.h"
#include "gallery/Entry.h"
#include "gallery/Shelf.h"

std::vector<Entry> DataDialogEntries()
{
    return {
        {"dialogs/data", "ImportDataDialog",
         [](Shelf&)
         {
             wxString name = "wages";
             return new ImportDataDialog(nullptr, name);
         }},
        {"dialogs/data", "ExportDataDialog",
         [](Shelf& shelf) { return new ExportDataDialog(nullptr, &shelf.datasets, 1, false); }},
    };
}
