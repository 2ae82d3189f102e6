#include "motion/teaching_session.h"

#include "forms/frm_posi.h"

namespace tr7 {

TeachingSessionRecord TeachingSession;

void EndLostTeaching() {
  if (TeachingSession.lost && !frmPosi.Teach.JogPending) TeachingSession.EndAsLost();
}

}  // namespace tr7
