#include "deskstyle.h"

#include "orbhost.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QStyle>

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
