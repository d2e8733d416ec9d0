// Headers that nearly every screen reads.
#pragma once
#include "prekompilowane.h"
#include <QtWidgets>
