#include "script/script_evaluator_host.h"

#include "script/session.h"

namespace tarnmill {

EvaluatorHost& ScriptEvaluatorHost::host() { return session_.bench().evaluator_host(); }

}  // namespace tarnmill
