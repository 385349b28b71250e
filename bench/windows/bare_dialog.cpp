// The least that a program with a window of Windows' own does: a dialog with one label.
#include <windows.h>

namespace {

INT_PTR CALLBACK answer(HWND dialog, UINT message, WPARAM, LPARAM) {
  if (message == WM_INITDIALOG) return TRUE;
  if (message != WM_CLOSE) return FALSE;
  EndDialog(dialog, 0);
  return TRUE;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, wchar_t*, int) {
  DialogBoxParamW(program, L"bare", nullptr, answer, 0);
  return 0;
}
