// Copies rows and settings of an inspector to the clipboard, and pastes them. Rows are copied as text for other
// programs, and with labels and values for inspectors, whatever their language. The format
// "application/x-tiv-inspector-rows" is a JSON list:
//
//     [["Loads", 4], ["Sum of loads", 3]]
#pragma once

#include "properties/definitions/property.h"

#include <vector>

class QMimeData;

namespace tiv::properties {

class Announcer;
class RecordEditor;
class RecordItemModel;
class ShownRows;
struct CopiedRow;
struct InspectorHost;

struct Clipboard {
    void copyRows() const;
    void copySettings() const;
    // Rows are set where the same label is shown, settings where the filter hides nothing. The message names
    // the rest.
    void paste() const;

    const Properties* properties;
    const InspectorHost* host;
    RecordEditor* editor;
    const RecordItemModel* rows;
    const ShownRows* shown;
    Announcer* announcer;

 private:
    void pasteRows(const std::vector<CopiedRow>& copied) const;
    void pasteSettings(const QMimeData& clipboard) const;
};

}  // namespace tiv::properties
