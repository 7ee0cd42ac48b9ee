// A table in memory with a cursor: what a query answered, and what the person changes in it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/ports/data_port.h"
#include "host/values/value.h"

namespace host {

class TClientDataSet;
struct DataSetColumns; // typed storage, one array a field

enum class DataSetState { Inactive, Browse, Edit, Insert };

// One field of the current row. `AsText` and friends read the row the cursor is on.
class TField {
public:
    std::string FieldName;
    FieldType Type = FieldType::Text;
    int Size = 0; // characters; 0 unlimited
    bool ReadOnly = false;
    // "0.00" shows two decimals; "" the shortest form; "yyyy-mm-dd" a day without its time.
    std::string DisplayFormat;

    bool IsNull() const;
    std::string AsText() const;    // plain value
    std::int64_t AsInteger() const; // text is read as a number; NULL is 0
    Amount AsAmount() const;        // NULL is 0
    bool AsBoolean() const;         // 1, true, "1", "True" are true
    DateTime AsDateTime() const;
    Value AsValue() const;
    std::string DisplayText() const; // by OnGetText, else by DisplayFormat

    void SetValue(Value value); // needs Edit or Insert state; converts to the field's type
    void Clear() { SetValue(Value{}); }
    // What a person typed: runs OnSetText, or converts; a text that does not fit the type is
    // refused with a message and Abort().
    void SetText(const std::string& typed);

    std::function<void(TField&, const std::string& typed)> OnSetText;
    std::function<std::string(const TField&)> OnGetText;

    TClientDataSet* dataset() const { return dataset_; }
    int index() const { return index_; }

private:
    friend class TClientDataSet;
    TClientDataSet* dataset_ = nullptr;
    int index_ = 0;
};

// What a renderer is told. Rows are positions in display order.
struct DataSetListener {
    virtual ~DataSetListener() = default;
    virtual void dataset_reset() = 0;                      // opened, closed, sorted, filtered
    virtual void row_changed(int row) = 0;
    virtual void rows_inserted(int first, int count) = 0;
    virtual void rows_removed(int first, int count) = 0;
    virtual void cursor_moved(int row) = 0;                // also on a change of state
};

class TClientDataSet {
public:
    TClientDataSet();
    ~TClientDataSet();
    TClientDataSet(const TClientDataSet&) = delete;
    TClientDataSet& operator=(const TClientDataSet&) = delete;

    // Structure. Filling from a query defines the fields that the query answered; fields defined
    // before keep their formats and handlers when a query answers them again.
    TField& DefineField(const std::string& name, FieldType type, int size = 0);
    TField& FieldByName(const std::string& name); // without regard to case; throws when absent
    const TField& FieldByName(const std::string& name) const;
    TField* FindField(const std::string& name);
    const std::vector<std::unique_ptr<TField>>& Fields() const { return fields_; }

    // Content.
    void Open();  // active and empty, with the defined fields
    void Close();
    bool Active() const;
    std::unique_ptr<RowReceiver> loader(); // fills the dataset; used by opensql
    void EmptyDataSet();
    void CopyFrom(const TClientDataSet& other); // structure and rows, cursor first

    // Cursor.
    int RecordCount() const;
    int RecNo() const; // position from 0; -1 when empty
    bool Eof() const;
    bool Bof() const;
    bool IsEmpty() const { return RecordCount() == 0; }
    void First();
    void Last();
    void Next();
    void Prior();
    void GotoRow(int row);
    bool Locate(const std::string& field, const std::string& text); // exact, case ignored
    Value value_at(int row, int field) const; // reads without moving the cursor
    std::string text_at(int row, int field) const;

    // Change. Moving away from an edited row posts it.
    DataSetState State() const { return state_; }
    void Append();
    void Insert(); // before the current row
    void Edit();
    void Post();
    void Cancel();
    void Delete();
    bool Modified() const;
    void MarkSaved(); // forgets the changes: Modified() is false again

    // View. The filter sees the dataset on the row asked about.
    void SetFilter(std::function<bool(const TClientDataSet&)> filter);
    void SortBy(const std::string& field, bool descending);
    const std::string& sorted_by() const { return sort_field_; }
    bool sorted_descending() const { return sort_descending_; }

    // Sum of an amount or integer field over the rows in view, kept up to date as cells change.
    Amount Sum(const std::string& field) const;

    // The statements that bring `table` to the state shown: inserts, updates, deletes by `key`.
    std::vector<std::string> ChangeStatements(const std::string& table, const std::string& key) const;

    std::function<void()> BeforePost, AfterPost, BeforeInsert, AfterInsert, BeforeEdit, AfterEdit,
        BeforeDelete, AfterDelete, AfterScroll, AfterCancel;
    std::function<void(TField*)> OnDataChange; // null: another row or the whole set

    // Renderers are not told between the two; a reset follows when something changed.
    void DisableControls();
    void EnableControls();
    void add_listener(DataSetListener* listener);
    void remove_listener(DataSetListener* listener);

private:
    friend class TField;
    friend struct DataSetLoader;
    std::vector<std::unique_ptr<TField>> fields_;
    std::unique_ptr<DataSetColumns> columns_;
    DataSetState state_ = DataSetState::Inactive;
    std::string sort_field_;
    bool sort_descending_ = false;
    std::vector<DataSetListener*> listeners_;
};

} // namespace host
