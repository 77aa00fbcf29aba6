// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which names the shared libraries show. Everything is compiled hidden; a class or function that a host uses is
// marked, and so its header is one of those that are installed. What is not marked can change from one version to
// the next without anybody's program noticing.
#pragma once

/// Before the name of a class, or before a function: part of what the shared libraries promise.
#define DN_EXPORT __attribute__((visibility("default")))

/// The same for what one of our libraries uses of another and no host does: its header is not installed. The
/// libraries are of one build and one package, so that it may change from one version to the next as well.
#define DN_INTERNAL DN_EXPORT
