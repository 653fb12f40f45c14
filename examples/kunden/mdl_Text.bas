Attribute VB_Name = "mdl_Text"
Option Compare Text
Option Explicit

' Hilfen für Texte: Anschriften, Umlaute, Platzhalter

Private Const UMLAUTE As String = "äöüÄÖÜß"
Private Const VOKALE As String = "aeiouäöü"
Private Const MAX_PLATZHALTER As Long = 40

Public Function Umschreiben(ByVal strText As String) As String
Attribute Umschreiben.VB_Description = "Schreibt Umlaute in zwei Buchstaben um, etwa für Dateinamen."
    Dim arrErsatz As Variant
    Dim i As Long

    On Error GoTo Fehler

    arrErsatz = Array("ae", "oe", "ue", "Ae", "Oe", "Ue", "ss")
    Umschreiben = strText
    For i = 1 To Len(UMLAUTE)
        Umschreiben = Replace(Umschreiben, Mid$(UMLAUTE, i, 1), arrErsatz(i - 1), , , vbBinaryCompare)
    Next i

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Text", "Umschreiben", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function DateinameBereinigen(ByVal strName As String) As String
    Dim strZeichen As String
    Dim strErgebnis As String
    Dim i As Long

    On Error Resume Next

    For i = 1 To Len(strName)
        strZeichen = Mid(strName, i, 1)
        If InStr("\/:*?<>|" & Chr$(34), strZeichen) = 0 Then
            strErgebnis = strErgebnis & strZeichen
        Else
            strErgebnis = strErgebnis & "_"
        End If
    Next i
    DateinameBereinigen = Trim$(strErgebnis)
End Function

Public Function ErsterBuchstabeGroß(ByVal strText As String) As String
    On Error Resume Next
    If Len(strText) = 0 Then Exit Function
    ErsterBuchstabeGroß = UCase(Left(strText, 1)) & Mid(strText, 2)
End Function

' Zählt die Vokale; daraus schätzt die Etikettenvorlage die Breite
Public Function AnzahlVokale(ByVal strText As String) As Long
    Dim i As Long

    On Error Resume Next
    For i = 1 To Len(strText)
        If InStr(VOKALE, LCase$(Mid$(strText, i, 1))) > 0 Then AnzahlVokale = AnzahlVokale + 1
    Next i
End Function

Public Function AnschriftBlock(ByRef typAdresse As AdressDaten) As String
    Dim strBlock As String

    On Error GoTo Fehler

    With typAdresse
        If Len(.strFirma) > 0 Then strBlock = .strFirma & vbCrLf
        If Len(.strNachname) > 0 Then
            strBlock = strBlock & Trim$(.strAnrede & " " & .strNachname) & vbCrLf
        End If
        strBlock = strBlock & .strStraße & vbCrLf
        strBlock = strBlock & Trim$(.strPlz & " " & .strOrt)
        If Len(.strLand) > 0 And .strLand <> "DE" Then
            strBlock = strBlock & vbCrLf & UCase$(LandName(.strLand))
        End If
    End With
    AnschriftBlock = strBlock

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Text", "AnschriftBlock", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function LandName(ByVal strKürzel As String) As String
    On Error Resume Next

    Select Case strKürzel
        Case "DE", "D"
            LandName = "Deutschland"
        Case "AT", "A"
            LandName = "Österreich"
        Case "CH"
            LandName = "Schweiz"
        Case "NL"
            LandName = "Niederlande"
        Case "FR", "F"
            LandName = "Frankreich"
        Case Else
            LandName = strKürzel
    End Select
End Function

' Ersetzt Platzhalter der Form {Name} durch die Felder des Datensatzes
Public Function PlatzhalterFüllen(ByVal strVorlage As String, ByVal rs As DAO.Recordset) As String
    Dim lngAuf As Long
    Dim lngZu As Long
    Dim lngRunde As Long
    Dim strFeld As String
    Dim strText As String

    On Error GoTo Fehler

    strText = strVorlage
    lngAuf = InStr(strText, "{")
    Do While lngAuf > 0 And lngRunde < MAX_PLATZHALTER
        lngZu = InStr(lngAuf, strText, "}")
        If lngZu = 0 Then Exit Do
        strFeld = Mid$(strText, lngAuf + 1, lngZu - lngAuf - 1)
        strText = Left$(strText, lngAuf - 1) & FeldText(rs, strFeld) & Mid$(strText, lngZu + 1)
        lngRunde = lngRunde + 1
        lngAuf = InStr(lngAuf, strText, "{")
    Loop
    PlatzhalterFüllen = strText

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Text", "PlatzhalterFüllen", Err.Number, Err.Description
    PlatzhalterFüllen = strVorlage
    Resume Ausgang
End Function

Private Function FeldText(ByVal rs As Recordset, ByVal strFeld As String) As String
    Dim varWert As Variant

    On Error GoTo Fehler

    varWert = rs.Fields(strFeld).Value
    If IsNull(varWert) Then
        FeldText = vbNullString
    ElseIf VarType(varWert) = vbDate Then
        FeldText = Format$(varWert, FORMAT_DATUM)
    ElseIf VarType(varWert) = vbCurrency Then
        FeldText = Format$(varWert, FORMAT_BETRAG)
    Else
        FeldText = CStr(varWert)
    End If

Ausgang:
    Exit Function
Fehler:
    FeldText = "{" & strFeld & "?}"
    Resume Ausgang
End Function

Public Function Auffüllen(ByVal strText As String, ByVal lngBreite As Long, Optional ByVal blnRechts As Boolean = False) As String
    On Error Resume Next

    If blnRechts Then
        Auffüllen = Right$(Space$(lngBreite) & strText, lngBreite)
    Else
        Auffüllen = Left$(strText & Space(lngBreite), lngBreite)
    End If
End Function

Public Function IstMailAdresse(ByVal strText As String) As Boolean
    Dim lngAt As Long

    On Error Resume Next
    lngAt = InStr(strText, "@")
    IstMailAdresse = lngAt > 1 And InStr(lngAt + 2, strText, ".") > 0 And Not strText Like "* *"
End Function
