#ifndef INSPECTORVIEW_H
#define INSPECTORVIEW_H

#include <QWidget>

class CallsModel;
class FilterBar;
class InspectionModel;
class LineInspector;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QTableView;
class RatesTable;

/// What passes over the line, package by package: a table that can be filtered and searched, and what the chosen
/// package is about. A wide one has the calls beside it, each with the way to its package and back, and how often each
/// command comes.
class InspectorView : public QWidget
{
    Q_OBJECT

public:
    enum Width { Narrow, Wide };

    /// \a inspector is not owned and must outlive the view.
    InspectorView(LineInspector *inspector, Width width, QWidget *parent = nullptr);

    FilterBar *filterBar() const { return m_filterBar; }
    /// Chooses the package with the inspection's number \a number, if the filter lets it through.
    void choosePackage(qint64 number);

Q_SIGNALS:
    /// Somebody wants to know what the bits of a package of the box do: \a frame is whole, of CAN-bus type \a type.
    void packageChosen(int type, const QByteArray &frame);
    /// A narrow one has a button for more room.
    void windowWanted();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void makeTable();
    QWidget *makeCalls();
    QWidget *makeChosen(bool isWide);
    void layOut(bool isWide);
    void setTexts();
    void showChosen();
    void openChosen();
    void showCallsOf(qint64 number);
    void search(bool isBackwards);
    void copyRows();

    InspectionModel *m_model;
    CallsModel *m_callsModel = nullptr;
    FilterBar *m_filterBar;
    QTableView *m_table;
    QListView *m_calls = nullptr;  // of a wide one
    RatesTable *m_rates = nullptr; // of a wide one
    QLabel *m_callsTitle = nullptr;
    QLabel *m_ratesTitle = nullptr;
    QLabel *m_chosen;
    QLineEdit *m_search;
    QPushButton *m_pause;
    QPushButton *m_copy;
    QPushButton *m_bits;             // of a wide one
    QPushButton *m_window = nullptr; // of a narrow one
    bool m_followsNewest = true;
};

#endif // INSPECTORVIEW_H
