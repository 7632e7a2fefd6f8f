// The conversion of annual tons to daily trips of trucks.
#pragma once

namespace model {

/// Reads "ttc.txt", "tontotruck.txt", "Dist.txt" and "commodity.txt" from the current directory, and writes
/// beside the analyst's commodity file a file of trips for each industry whose commodities go by truck:
/// "grain.txt" gives "grain_Agriculture_trip.txt". A file of that name of an industry without trips is
/// removed, since an earlier conversion left it. Throws Refusal at the first thing that is not as it must
/// be; all input has been looked at before anything is written.
void convert();

}  // namespace model
