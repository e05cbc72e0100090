#include "support/Catalogues.h"
