#pragma once

class QListView;

/** Lists that open below a field and may have texts wider than that. */
namespace WidePopup {

/** The width that the texts of \a list want, in pixels, up to what a popup may have. */
int wantedWidth(const QListView *list);

/** Widens the window of \a list, which is open, to that; to the left where the screen ends. */
void widen(QListView *list);

} // namespace WidePopup
