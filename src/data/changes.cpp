#include "data/changes.h"

Changes &Changes::instance()
{
    static Changes changes;
    return changes;
}
