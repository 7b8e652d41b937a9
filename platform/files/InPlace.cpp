#include "platform/files/InPlace.h"

#include "platform/errors/RuntimeError.h"

namespace trelonit {

void WriteInPlace(const std::function<void(std::string_view)>& write, std::string_view old,
                  std::string_view bytes, const std::function<std::string()>& keepCopy) {
  try {
    write(bytes);
  } catch (const RuntimeError& failure) {
    try {
      write(old);
    } catch (const RuntimeError&) {
      throw RuntimeError(failure.Number(), failure.Description() +
                                               ". Файл испорчен, прежнее содержимое сохранено в «" +
                                               keepCopy() + "»");
    }
    throw;
  }
}

}  // namespace trelonit
