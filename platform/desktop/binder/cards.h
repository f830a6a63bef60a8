// Cards: widgets of a form that lie over it instead of standing in its layout, a calendar below its date
// field for instance. In the form's file a card is a child of the form outside all layouts, with the property
// `below` that names the widget under which it appears, or `over` that names the one whose middle it covers.
// It stays inside the form: where the room below ends it goes above.
#pragma once

#include <QWidget>

namespace ovindra::desktop {

/// Lets every card of the form find its place whenever it is shown or the form changes its size.
void PlaceCards(QWidget& form);

}  // namespace ovindra::desktop
