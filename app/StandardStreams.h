#pragma once

namespace app
{
/// Puts nothing in the place of each standard stream that the program was started without. Else the next file that is
/// opened would take it, and what is printed would end up in there. To be called before any file is opened.
void OccupyClosedStreams();

/// Whether what was printed on standard output has arrived; where it has not, says so on standard error.
bool HasAnswerArrived();
} // namespace app
