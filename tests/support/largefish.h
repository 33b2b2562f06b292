// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <tests/support/editorfixture.h>

namespace TestSupport {

/** A model that counts what it is asked. */
class AskedModel : public FishModel
{
public:
    QModelIndex index(int row, int column, const QModelIndex &parent) const override
    {
        ++questions;
        return FishModel::index(row, column, parent);
    }
    QModelIndex parent(const QModelIndex &index) const override
    {
        ++questions;
        return FishModel::parent(index);
    }
    int rowCount(const QModelIndex &parent) const override
    {
        ++questions;
        return FishModel::rowCount(parent);
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        ++questions;
        return FishModel::data(index, role);
    }

    mutable int questions = 0;
};

/** An editor on a document that was never a file. */
template <typename Model>
class LargeFixture
{
public:
    explicit LargeFixture(std::unique_ptr<TreeItem> tree)
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        head = addDocument(model, std::move(tree));
        top = model.indexFromItem(head);
        editor.setModel(&model);
        editor.setRootIndex(top);
    }

    Model model;
    FishEditor editor;
    TreeItem *head = nullptr;
    QModelIndex top;
};

/** Three children everywhere. */
inline std::unique_ptr<TreeItem> makeBushy(int nodes)
{
    auto head = std::make_unique<TreeItem>();
    std::vector<TreeItem *> all{head.get()};
    for (std::size_t i = 0; int(all.size()) < nodes; ++i) {
        for (int row = 0; row < 3; ++row) {
            auto child = std::make_unique<TreeItem>();
            child->setTitle(QString::number(all.size()));
            all.push_back(child.get());
            all[i]->appendChild(child.release());
        }
    }
    return head;
}

} // namespace TestSupport
