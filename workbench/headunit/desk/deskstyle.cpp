#include "deskstyle.h"

#include "orbhost.h"

#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyle>
#include <QTableView>

// Resources of a static library are there only once someone asks for them, outside any namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(desk);
    Q_INIT_RESOURCE(headunit_i18n);
}

void DeskStyle::load()
{
    static const OrbHost *loadedFor = nullptr;
    loadResources();
    if (loadedFor != OrbHost::instance()) {
        loadedFor = OrbHost::instance();
        OrbHost::instance()->addTranslationDir(QStringLiteral(":/i18n"));
    }
}

QString DeskStyle::sheet()
{
    QFile style(QStringLiteral(":/desk/desk.qss"));
    return style.open(QIODevice::ReadOnly) ? QString::fromUtf8(style.readAll()) : QString();
}

// A style sheet knows no colour for the hint, and looks at the text only when it is told to.
void DeskStyle::dimHint(QLineEdit *field)
{
    QObject::connect(field, &QLineEdit::textChanged, field, [field, wasEmpty = true]() mutable {
        if (wasEmpty != field->text().isEmpty()) {
            wasEmpty = !wasEmpty;
            // The field of a combo box has the colours of that.
            QWidget *const box = qobject_cast<QComboBox *>(field->parentWidget());
            QWidget *const styled = box ? box : field;
            styled->style()->unpolish(styled);
            styled->style()->polish(styled);
        }
    });
}

void DeskStyle::makeDense(QTableView *table, int rowHeight)
{
    table->setObjectName(QStringLiteral("lineTable"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setMinimumSectionSize(rowHeight);
    table->verticalHeader()->setDefaultSectionSize(rowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setMinimumSectionSize(16);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}
