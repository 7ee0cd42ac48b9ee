// The whole syntax tree, for those who walk all of it.
#pragma once

#include "tsql/syntax/control.h"
#include "tsql/syntax/cursor.h"
#include "tsql/syntax/ddl.h"
#include "tsql/syntax/dml.h"
#include "tsql/syntax/execute.h"
#include "tsql/syntax/routine.h"
#include "tsql/syntax/transaction.h"
