#pragma once

#include <string>

#include "main/main_window.h"
#include "store/session.h"

// The draw that stands in the boxes, known by its place among the draws of the file. Edit and
// Remove mean this draw, however it came there.

namespace main_window {

// Why nothing can be changed where a load met an error.
inline constexpr const char* kNotComplete =
    "Not every draw of this database could be read, so none can be changed";

// Another draw, or the same one anew, comes into the boxes; 0 for none. An edit that was going on
// is given up.
void SetDrawOnShow(store::Session& session, MainWindow& window, int place);

// Enables what may change draws, and says in a tip why where it may not: Edit with a draw on show
// that is in the table, so not while a new one stands in the boxes; Remove the same unless one is
// edited, also for the blank row that an empty database has; Add in a database that is known
// whole.
void EnableChanges(store::Session& session, MainWindow& window);

bool IsEditing(const MainWindow& window);
void StopEditing(MainWindow& window);

// Closes the row editor where its draw may have come to another place.
void CloseRowEditor(store::Session& session, MainWindow& window);

// The record of the draw on show as it lies in the file; empty when there is none.
std::string BytesOnShow(store::Session& session);

}  // namespace main_window
