#include "entries/opencommands.h"

#include "bank/frmmovimentobanc.h"
#include "entries/frmadicionar.h"
#include "widgets/listview.h"

void opencommands::open(const RowOrigin &origin, QWidget *over)
{
    if (origin.subject == Subject::Movements)
        frmmovimentobanc::openEdit(origin.key, over, origin.file);
    else
        frmAdicionar::openEdit(origin.subject == Subject::Payables ? payable() : receivable(),
                               QString::number(origin.key), over, origin.file);
}

void opencommands::openOnActivation(ListView &list)
{
    QObject::connect(&list, &ListView::rowActivated, &list, [&list](int row) {
        if (const auto origin = list.origin(row))
            open(*origin, list.window());
    });
}
