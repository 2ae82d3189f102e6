#include "para/sys_para.h"

namespace tr7 {

SysParaRecord SysPara;
SysParaRecord SysParaRead;

}  // namespace tr7
