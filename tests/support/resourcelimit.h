// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/resource.h>

/** Keeps the process to fewer descriptors or threads (RLIMIT_NOFILE, RLIMIT_NPROC) while it
 *  lives. Root may have as many threads as it likes. */
class ResourceLimit
{
public:
    ResourceLimit(__rlimit_resource resource, rlim_t limit) : mResource(resource)
    {
        getrlimit(mResource, &mBefore);
        const rlimit lowered = {limit, mBefore.rlim_max};
        setrlimit(mResource, &lowered);
    }
    ~ResourceLimit() { setrlimit(mResource, &mBefore); }

private:
    const __rlimit_resource mResource;
    rlimit mBefore = {};
};
