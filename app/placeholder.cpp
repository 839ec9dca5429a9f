#include "app/identity.h"
