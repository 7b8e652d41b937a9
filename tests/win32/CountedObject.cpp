#include "tests/win32/CountedObject.h"

#include "platform/win32/Utf16.h"

namespace trelonit::test {

HRESULT UntypedDispatch::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT UntypedDispatch::GetTypeInfo(UINT, LCID, ITypeInfo**) {
  return E_NOTIMPL;
}

HRESULT UntypedDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                       DISPID* identifiers) {
  identifiers[0] = IdentifierOf(FromWide(names[0]));
  return count == 1 && identifiers[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

}  // namespace trelonit::test
