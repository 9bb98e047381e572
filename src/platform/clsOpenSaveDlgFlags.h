// The flag set of the open/save dialog wrapper: one true/false property per
// flag of the common file dialogs, kept in one 32-bit value.
#pragma once

#include <QtGlobal>

class clsOpenSaveDlgFlags {
public:
    enum Bit : quint32 {
        OFN_READONLY = 0x1,
        OFN_OVERWRITEPROMPT = 0x2,
        OFN_HIDEREADONLY = 0x4,
        OFN_NOCHANGEDIR = 0x8,
        OFN_NOVALIDATE = 0x100,
        OFN_ALLOWMULTISELECT = 0x200,
        OFN_EXTENSIONDIFFERENT = 0x400,
        OFN_PATHMUSTEXIST = 0x800,
        OFN_FILEMUSTEXIST = 0x1000,
        OFN_CREATEPROMPT = 0x2000,
        OFN_SHAREAWARE = 0x4000,
        OFN_NOREADONLYRETURN = 0x8000,
        OFN_NOTESTFILECREATE = 0x10000,
        OFN_NONETWORKBUTTON = 0x20000,
        OFN_NOLONGNAMES = 0x40000,
        OFN_EXPLORER = 0x80000,
        OFN_NODEREFERENCELINKS = 0x100000,
        OFN_LONGNAMES = 0x200000,
    };

    quint32 Value() const { return value_; }

    bool AllowMultiSelect() const { return has(OFN_ALLOWMULTISELECT); }
    void setAllowMultiSelect(bool on) { set(OFN_ALLOWMULTISELECT, on); }
    bool CreatePrompt() const { return has(OFN_CREATEPROMPT); }
    void setCreatePrompt(bool on) { set(OFN_CREATEPROMPT, on); }
    bool Explorer() const { return has(OFN_EXPLORER); }
    void setExplorer(bool on) { set(OFN_EXPLORER, on); }
    bool ExtensionDifferent() const { return has(OFN_EXTENSIONDIFFERENT); }
    // Setting it makes the path required too; clearing it keeps that.
    bool FileMustExist() const { return has(OFN_FILEMUSTEXIST); }
    void setFileMustExist(bool on);
    bool HideReadOnly() const { return has(OFN_HIDEREADONLY); }
    void setHideReadOnly(bool on) { set(OFN_HIDEREADONLY, on); }
    bool LongNames() const { return has(OFN_LONGNAMES); }
    void setLongNames(bool on) { set(OFN_LONGNAMES, on); }
    bool NoChangeDir() const { return has(OFN_NOCHANGEDIR); }
    void setNoChangeDir(bool on) { set(OFN_NOCHANGEDIR, on); }
    bool NoDereferenceLinks() const { return has(OFN_NODEREFERENCELINKS); }
    void setNoDereferenceLinks(bool on) { set(OFN_NODEREFERENCELINKS, on); }
    bool NoLongNames() const { return has(OFN_NOLONGNAMES); }
    void setNoLongNames(bool on) { set(OFN_NOLONGNAMES, on); }
    bool NoNetworkButton() const { return has(OFN_NONETWORKBUTTON); }
    void setNoNetworkButton(bool on) { set(OFN_NONETWORKBUTTON, on); }
    bool NoReadOnlyReturn() const { return has(OFN_NOREADONLYRETURN); }
    void setNoReadOnlyReturn(bool on) { set(OFN_NOREADONLYRETURN, on); }
    bool NoTestFileCreate() const { return has(OFN_NOTESTFILECREATE); }
    void setNoTestFileCreate(bool on) { set(OFN_NOTESTFILECREATE, on); }
    bool NoValidate() const { return has(OFN_NOVALIDATE); }
    void setNoValidate(bool on) { set(OFN_NOVALIDATE, on); }
    bool OverwritePrompt() const { return has(OFN_OVERWRITEPROMPT); }
    void setOverwritePrompt(bool on) { set(OFN_OVERWRITEPROMPT, on); }
    bool PathMustExist() const { return has(OFN_PATHMUSTEXIST); }
    void setPathMustExist(bool on) { set(OFN_PATHMUSTEXIST, on); }
    bool ReadOnly() const { return has(OFN_READONLY); }
    void setReadOnly(bool on) { set(OFN_READONLY, on); }
    bool ShareAware() const { return has(OFN_SHAREAWARE); }
    void setShareAware(bool on) { set(OFN_SHAREAWARE, on); }

private:
    bool has(quint32 bit) const { return (value_ & bit) != 0; }
    void set(quint32 bit, bool on) { value_ = on ? (value_ | bit) : (value_ & ~bit); }

    quint32 value_ = 0;
};

inline void clsOpenSaveDlgFlags::setFileMustExist(bool on)
{
    if (on)
        value_ |= OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST;
    else
        value_ &= ~quint32(OFN_FILEMUSTEXIST);
}
