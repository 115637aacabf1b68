#include "battle/WhoMayAct.h"

namespace skylob {

namespace {

bool isAllowed(Deed deed, Phase phase) {
    const bool isPlayersTurn = phase == Phase::Waiting || phase == Phase::Asking;
    switch (deed) {
        case Deed::Aim:
            return phase != Phase::Setup && phase != Phase::Shot && phase != Phase::Watching;
        case Deed::ChangeOption:
        case Deed::ClickEffectBox:
            return isPlayersTurn;
        case Deed::Quit:
            return phase == Phase::Waiting || phase == Phase::Watching;
        case Deed::Shoot:
        case Deed::BeginEffect:
        case Deed::ReadRules:
            break;
    }
    return phase == Phase::Waiting;
}

}  // namespace

Verdict verdictOn(Deed deed, Phase phase, bool effectIsUnderWay) {
    if (!isAllowed(deed, phase)) return Verdict::No;
    if (!effectIsUnderWay || deed == Deed::Aim || deed == Deed::ChangeOption) return Verdict::Now;
    const bool canWait = deed != Deed::BeginEffect && deed != Deed::ReadRules;
    return canWait ? Verdict::AfterTheEffect : Verdict::No;
}

bool isStillWanted(Deed deed, Phase phase) {
    return deed == Deed::ClickEffectBox || isAllowed(deed, phase);
}

}  // namespace skylob
