// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/sending.h"

namespace dn::host {

Sending::Sending(Work work)
    : thread_([this, work = std::move(work)] {
          try {
              work(progress_);
          } catch (...) { // whatever it is, it is the waiting side's to hear
              failure_ = std::current_exception();
          }
          finished_ = true;
      })
{
}

Sending::~Sending()
{
    cancel();
    if (thread_.joinable()) thread_.join();
}

int Sending::percent() const
{
    const std::int64_t total = progress_.total;
    return total == 0 ? -1 : static_cast<int>(progress_.done * 100 / total);
}

void Sending::result()
{
    if (thread_.joinable()) thread_.join();
    if (failure_) std::rethrow_exception(failure_);
}

} // namespace dn::host
