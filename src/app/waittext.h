#pragma once

#include "widgets/waittext.h"
