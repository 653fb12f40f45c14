// A name that no module declares has the capitalisation of the library that declares it. The list holds the whole VBA
// library, and of the database libraries what programs use most. Words of the language itself are listed only where a
// member is written otherwise than the keyword.

#include "vba/library_names.h"

namespace zentlor::vba {

const TextView kLibraryNames =
    // Functions and procedures of the VBA library
    u"AppActivate Asc AscB AscW CallByName ChDir ChDrive Choose Chr ChrB ChrW Command Conversion Cos CreateObject "
    u"CurDir "
    u"CVDate DateAdd DateDiff DatePart DateSerial DateValue Day DDB DeleteSetting Dir Environ EOF Erl Err Exp FileAttr "
    u"FileCopy FileDateTime FileLen Filter Format FormatCurrency FormatDateTime FormatNumber FormatPercent FreeFile FV "
    u"GetAllSettings GetAttr GetObject GetSetting Hex Hour IIf IMEStatus InputBox InStr InStrB InStrRev IPmt IRR "
    u"IsArray "
    u"IsDate IsEmpty IsError IsMissing IsNull IsNumeric IsObject Join Kill LCase Left LeftB Loc LOF Log LTrim "
    u"MacID MacScript Minute MIRR MkDir Month MonthName MsgBox Now NPer NPV ObjPtr Oct Partition Pmt PPmt PV QBColor "
    u"Randomize Rate Replace RGB Right RightB RmDir Rnd Round RTrim SaveSetting Second SendKeys SetAttr Shell Sin SLN "
    u"Space Split Sqr Str StrComp StrConv StrPtr StrReverse Switch SYD Tan Time Timer TimeSerial TimeValue Trim "
    u"TypeName "
    u"UCase Val VarPtr VarType Weekday WeekdayName Year "
    // Objects, their members and the names of arguments
    u"Add Assert Buttons Clear Collection Count Description ErrObject FirstDayOfWeek FirstWeekOfYear HelpContext "
    u"HelpFile "
    u"Item LastDllError Number Prompt Raise Remove Source Title VBA Initialize Terminate UserForms Load Unload "
    // Constants
    u"VbAppWinStyle VbCalendar VbCallType VbCompareMethod VbDateTimeFormat VbDayOfWeek VbFileAttribute "
    u"VbFirstWeekOfYear "
    u"VbIMEStatus VbMsgBoxResult VbMsgBoxStyle VbQueryClose VbStrConv VbTriState VbVarType vbAbort vbAbortRetryIgnore "
    u"vbAlias vbApplicationModal vbArchive vbArray vbBack vbBinaryCompare vbBlack vbBlue vbBoolean vbByte vbCalGreg "
    u"vbCalHijri vbCancel vbCr vbCritical vbCrLf vbCurrency vbCyan vbDatabaseCompare vbDataObject vbDate vbDecimal "
    u"vbDefaultButton1 vbDefaultButton2 vbDefaultButton3 vbDefaultButton4 vbDirectory vbDouble vbEmpty vbError "
    u"vbExclamation vbFalse vbFirstFourDays vbFirstFullWeek vbFirstJan1 vbFormCode vbFormControlMenu vbFormFeed "
    u"vbFriday "
    u"vbFromUnicode vbGeneralDate vbGet vbGreen vbHidden vbHide vbHiragana vbIgnore vbInformation vbInteger vbKatakana "
    u"vbLet vbLf vbLong vbLongDate vbLongLong vbLongPtr vbLongTime vbLowerCase vbMagenta vbMaximizedFocus vbMethod "
    u"vbMinimizedFocus vbMinimizedNoFocus vbMonday vbMsgBoxHelpButton vbMsgBoxRight vbMsgBoxRtlReading "
    u"vbMsgBoxSetForeground vbNarrow vbNewLine vbNo vbNormal vbNormalFocus vbNormalNoFocus vbNull vbNullChar "
    u"vbNullString vbObject vbObjectError vbOK vbOKCancel vbOKOnly vbProperCase vbQuestion vbReadOnly vbRed vbRetry "
    u"vbRetryCancel vbSaturday vbSet vbShortDate vbShortTime vbSingle vbString vbSunday vbSystem vbSystemModal vbTab "
    u"vbTextCompare vbThursday vbTrue vbTuesday vbUnicode vbUpperCase vbUseDefault vbUserDefinedType vbUseSystem "
    u"vbUseSystemDayOfWeek vbVariant vbVerticalTab vbVolume vbWednesday vbWhite vbWide vbYellow vbYes vbYesNo "
    u"vbYesNoCancel VBA6 VBA7 Win16 Win32 Win64 Mac "
    // Access
    u"AcCommand acCmdSaveRecord acDesign acDialog acExit acForm acFormAdd acFormEdit acHidden acMacro acMenuVer70 "
    u"acModule "
    u"acNormal acPreview acQuery acReport acSaveNo acSavePrompt acSaveYes acTable acViewDesign acViewNormal "
    u"acViewPreview "
    u"AfterUpdate AllowAdditions AllowDeletions AllowEdits Application ApplyFilter BeforeUpdate CancelEvent Caption "
    u"CloseCurrentDatabase CodeContextObject CodeDb CodeProject ColumnCount Control Controls ControlSource ControlType "
    u"CopyObject CurrentDb CurrentProject CurrentUser CurrentView DAvg DCount DeleteObject DFirst Dirty DisplayAlerts "
    u"DLast "
    u"DLookup DMax DMin DoCmd DoMenuItem DStDev DStDevP DSum DVar DVarP Echo Enabled Eval FilterOn FindFirst FindLast "
    u"FindNext FindPrevious FindRecord Form Forms GoToControl GoToPage GoToRecord HasData Hourglass ItemsSelected "
    u"LimitToList ListCount ListIndex Locked Maximize Minimize MoveSize Nz OldValue OnClick OpenArgs "
    u"OpenCurrentDatabase "
    u"OpenForm OpenModule OpenQuery OpenReport OpenTable OrderBy OrderByOn OutputTo Parent PrintOut Quit Recalc "
    u"RecordSource "
    u"RecordsetClone Refresh Rename Repaint RepaintObject Report Reports Requery RowSource RowSourceType RunCode "
    u"RunCommand "
    u"RunMacro RunSQL Screen Section SelectObject SetFocus SetWarnings ShowAllRecords ShowToolbar SubForm SysCmd Tag "
    u"TransferDatabase TransferSpreadsheet TransferText Undo Value Visible "
    // DAO and ADO
    u"AbsolutePosition ActiveConnection AddNew ADODB adCmdStoredProc adCmdTable adCmdText adLockBatchOptimistic "
    u"adLockOptimistic adLockPessimistic adLockReadOnly adOpenDynamic adOpenForwardOnly adOpenKeyset adOpenStatic "
    u"adStateClosed adStateOpen adUseClient adUseServer AppendChunk BeginTrans BOF Bookmark Cancel CancelUpdate "
    u"Catalog "
    u"Columns CommandText CommandTimeout CommandType CommitTrans Connection Connections ConnectionString Containers "
    u"CreateDatabase CreateField CreateIndex CreateParameter CreateProperty CreateQueryDef CreateRelation "
    u"CreateTableDef "
    u"CreateWorkspace CursorLocation CursorType DAO DBEngine DatabaseTypeEnum Databases dbAppendOnly dbAutoIncrField "
    u"dbBoolean dbByte dbCurrency dbDate dbDenyWrite dbDouble dbFailOnError dbInteger dbLong dbMemo dbOpenDynaset "
    u"dbOpenForwardOnly dbOpenSnapshot dbOpenTable dbReadOnly dbRefreshCache dbSeeChanges dbSingle dbText Delete "
    u"Document "
    u"Documents Edit EditMode EOF Errors Execute Field Fields GetChunk GetRows GetString Index Indexes Idle LockType "
    u"MoveFirst MoveLast MoveNext MovePrevious NoMatch OpenConnection OpenDatabase OpenRecordset OpenSchema Parameter "
    u"Parameters PrimaryKey Properties Provider QueryDef QueryDefs QueryTimeout RecordCount Record Recordset "
    u"Recordsets "
    u"RecordsAffected Relation Relations Required ReturnsRecords Rollback RollbackTrans Sort SQL State Stream TableDef "
    u"TableDefs Transactions Unique Update UpdateBatch User Users Workspace Workspaces";

}  // namespace zentlor::vba
