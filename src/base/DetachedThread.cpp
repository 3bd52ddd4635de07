#include "base/DetachedThread.h"

#include <system_error>
#include <thread>

bool runDetached(std::function<void()> work)
{
    try {
        std::thread([work = std::move(work)] {
            try {
                work();
            } catch (...) {
                // There is nobody who could be told.
            }
        }).detach();
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}
