#pragma once

namespace zenqo
{
/// A whole number of seconds as an unsigned one, for every `seconds` there is: a negative number
/// becomes huge, as if it had been converted by way of a signed one; infinity and NaN become 0; a
/// number past the largest becomes the largest.
unsigned long ToUnsigned(double seconds);

/// The seconds that a run still takes if the gauge stands at `value` of 90 after `elapsed` seconds.
/// 0 for a value of 0, and huge for one above 90.
unsigned long EstimateRemaining(int value, unsigned long elapsed);

/// The readout that follows `last` when the new estimate is `estimate`: their mean, the old one less
/// the second that has passed, or the estimate itself when the old one has run out.
unsigned long SmoothRemaining(unsigned long estimate, unsigned long last);
} // namespace zenqo
