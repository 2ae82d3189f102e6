#pragma once

namespace tr7 {

/// Offers what earlier runs of the tool have left unsaved, where there is any: once a start. What
/// the user takes back is unsaved work as before; what is left for later is offered at the next
/// start. A file that is damaged is told and set aside.
void OfferKeptWork();

}  // namespace tr7
