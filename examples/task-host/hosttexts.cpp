// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <hosttexts.h>

std::unique_ptr<QTranslator> HostTexts::load()
{
    auto texts = std::make_unique<QTranslator>();
    const QString folder = QStringLiteral(TASK_HOST_TRANSLATIONS); // where the package has them
    return texts->load(QStringLiteral("fishbone_en"), folder) ? std::move(texts) : nullptr;
}
