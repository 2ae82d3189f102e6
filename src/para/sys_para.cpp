#include "para/sys_para.h"

namespace tr7 {

SysParaRecord SysPara;
SysParaRecord SysParaRead;
Bool16 SysParaKnown;

int SysParaHighest(std::size_t slot) {
  constexpr std::size_t kFirstByte = 17, kLastByte = 48;
  return slot >= kFirstByte && slot <= kLastByte ? 255 : 65535;
}

bool SysParaIsInRange(std::size_t slot) {
  return SysPara[slot] >= 0 && SysPara[slot] <= SysParaHighest(slot);
}

int SystemParametaValueCheck() {
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) {
    if (!SysParaIsInRange(slot)) return 1;
  }
  return 0;
}

}  // namespace tr7
