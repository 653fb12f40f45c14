Attribute VB_Name = "mdl_Einstellungen"
Option Compare Database
Option Explicit

' Einstellungen der Anwendung (Tabelle) und des Arbeitsplatzes (Registrierung)

Private Const ABSCHNITT As String = "Arbeitsplatz"
Private Const TABELLE As String = "tblEinstellungen"

Private mcolPuffer As Collection

Public Function EinstellungLesen(ByVal strSchlüssel As String, ByVal strVorgabe As String) As String
    Dim strWert As String

    On Error GoTo Fehler

    If mcolPuffer Is Nothing Then PufferFüllen
    strWert = mcolPuffer.Item(strSchlüssel)
    EinstellungLesen = strWert

Ausgang:
    Exit Function
Fehler:
    ' 5: Schlüssel steht nicht in der Sammlung
    If Err.Number <> 5 Then FehlerMelden "mdl_Einstellungen", "EinstellungLesen", Err.Number, Err.Description
    EinstellungLesen = strVorgabe
    Resume Ausgang
End Function

Public Sub EinstellungSchreiben(ByVal strSchlüssel As String, ByVal strWert As String)
    Dim lngZeilen As Long

    On Error GoTo Fehler

    lngZeilen = SqlAusführen("UPDATE " & TABELLE & " SET Wert = " & SqlText(strWert) & _
        " WHERE Schlüssel = " & SqlText(strSchlüssel))
    If lngZeilen = 0 Then
        SqlAusführen "INSERT INTO " & TABELLE & " (Schlüssel, Wert) VALUES (" & _
            SqlText(strSchlüssel) & ", " & SqlText(strWert) & ")"
    End If
    Set mcolPuffer = Nothing

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_Einstellungen", "EinstellungSchreiben", Err.Number, Err.Description
    Resume Ausgang
End Sub

Private Sub PufferFüllen()
    Dim rs As DAO.Recordset

    On Error GoTo Fehler

    Set mcolPuffer = New Collection
    Set rs = AktuelleDb().OpenRecordset(TABELLE, dbOpenSnapshot)
    Do Until rs.EOF
        mcolPuffer.Add Nz(rs!Wert, vbNullString), rs!Schlüssel
        rs.MoveNext
    Loop

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Einstellungen", "PufferFüllen", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Function PlatzLesen(ByVal strSchlüssel As String, Optional ByVal strVorgabe As String = "") As String
    On Error Resume Next
    PlatzLesen = GetSetting(APP_NAME, ABSCHNITT, strSchlüssel, strVorgabe)
End Function

Public Sub PlatzSchreiben(ByVal strSchlüssel As String, ByVal strWert As String)
    On Error Resume Next
    SaveSetting APP_NAME, ABSCHNITT, strSchlüssel, strWert
End Sub

Public Property Get StandardSteuer() As SteuerSatz
    On Error Resume Next
    StandardSteuer = CLng(EinstellungLesen("Steuersatz", CStr(ssVoll)))
End Property

Public Property Let StandardSteuer(ByVal enmWert As SteuerSatz)
    On Error Resume Next
    EinstellungSchreiben "Steuersatz", CStr(enmWert)
End Property

Public Function SteuerProzent(ByVal enmSatz As SteuerSatz) As Double
    On Error Resume Next

    Select Case enmSatz
        Case ssVoll
            SteuerProzent = MWST_VOLL
        Case ssErmäßigt
            SteuerProzent = MWST_ERMÄSSIGT
        Case ssAlt
            SteuerProzent = MWST_ALT
        Case Else
            SteuerProzent = 0
    End Select
End Function
