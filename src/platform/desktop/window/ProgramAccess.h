#pragma once

namespace orvanta {

/// From now on, assistive technologies find the program's windows and their controls. Nothing is created
/// until one asks. Needs the application object.
void OfferAccess();

/// Notifies assistive technologies about what has changed in the windows since the last call. Does nothing if
/// none is running.
void FollowAccess();

}  // namespace orvanta
