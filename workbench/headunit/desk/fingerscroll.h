#ifndef FINGERSCROLL_H
#define FINGERSCROLL_H

class QAbstractScrollArea;

/// Scrolling a page by dragging it.
namespace FingerScroll {

/// \a area follows a finger from now on, except for one that is put on a slider or a steering wheel: that one
/// is theirs.
void enable(QAbstractScrollArea *area);

} // namespace FingerScroll

#endif // FINGERSCROLL_H
