#include "platform/errors/Guard.h"

#include <ios>
#include <new>

namespace trelonit {

RuntimeError ErrorInHand() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(ErrorNumber::OutOfMemory);
  } catch (const std::ios_base::failure&) {
    return RuntimeError(ErrorNumber::DeviceIoError);
  } catch (const std::exception& error) {
    return {static_cast<int>(ErrorNumber::InternalError), error.what()};
  } catch (...) {
    return RuntimeError(ErrorNumber::InternalError);
  }
}

}  // namespace trelonit
