#include "workstation/main/WaitCaption.h"

namespace trelonit {

void StepWaitCaption(Label& form, Long& counter) {
  constexpr Long lastStep = 30;
  constexpr Long firstTextStep = 26;
  if (counter > lastStep) {
    counter = 1;
    form.SetCaption(" . ");
  }
  form.SetCaption(counter < firstTextStep ? " . " + form.Caption()
                                          : "Подождите пожалуйста, идет подбор профиля");
  ++counter;
}

}  // namespace trelonit
