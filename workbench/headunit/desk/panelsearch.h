#ifndef PANELSEARCH_H
#define PANELSEARCH_H

class QString;
class QWidget;

/// Finding a control on a page of the side panel by what it is called.
namespace PanelSearch {

/// \a control, on a card of a page, is found by the words of \a text.
void name(QWidget *control, const QString &text);

/// Whether \a page has anything to be found.
bool isSearchable(const QWidget *page);

/// Leaves those controls of \a page in sight whose name holds every word of \a words, in any case, and the cards
/// with such controls; all of them for no words.
void find(QWidget *page, const QString &words);

} // namespace PanelSearch

#endif // PANELSEARCH_H
