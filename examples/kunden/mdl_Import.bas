Attribute VB_Name = "mdl_Import"
Option Compare Database
Option Explicit

' Einlesen von Kunden (CSV des Onlineshops) und Kontoauszügen (Bank)

Private Const KOPF_SHOP As String = "Kundennummer;Firma;Name;Strasse;PLZ;Ort;Land;Mail"
Private Const SPALTEN_SHOP As Long = 8
Private Const ZEICHEN_ANFÜHRUNG As String = """"
Private Const PFAD_EINGANG$ = "\Eingang\"

Private mtypErgebnis As ImportErgebnis
Private mstrDatei$, mintKanal%
Private mcolFehler As New Collection

Public Function ShopEinlesen(ByVal strDatei As String) As Long
    Dim strZeile As String
    Dim arrFelder() As String
    Dim typLeer As ImportErgebnis
    Dim blnKopf As Boolean

    On Error GoTo Fehler

    mtypErgebnis = typLeer
    mstrDatei = strDatei
    mintKanal = FreeFile
    Open mstrDatei For Input As #mintKanal
    blnKopf = True
    Do While Not EOF(mintKanal)
        Line Input #mintKanal, strZeile
        If blnKopf Then
            blnKopf = False
            If strZeile <> KOPF_SHOP Then
                MsgBox "Die Datei hat nicht den erwarteten Kopf.", vbExclamation, APP_NAME
                GoTo Ausgang
            End If
        ElseIf Len(Trim$(strZeile)) > 0 Then
            mtypErgebnis.lngGelesen = mtypErgebnis.lngGelesen + 1
            arrFelder = ZeileTeilen(strZeile)
            If UBound(arrFelder) + 1 >= SPALTEN_SHOP Then
                KundeÜbernehmen arrFelder
            Else
                mtypErgebnis.lngFehlerhaft = mtypErgebnis.lngFehlerhaft + 1
                mcolFehler.Add strZeile
            End If
        End If
    Loop
    ShopEinlesen = mtypErgebnis.lngNeu + mtypErgebnis.lngGeändert

Ausgang:
    If mintKanal > 0 Then Close #mintKanal
    mintKanal = 0
    Exit Function
Fehler:
    FehlerMelden "mdl_Import", "ShopEinlesen", Err.Number, Err.Description
    Resume Ausgang
End Function

' Teilt eine Zeile am Trennzeichen, Anführungszeichen schützen es
Public Function ZeileTeilen(ByVal strZeile As String) As String()
    Dim arrFelder() As String
    Dim lngFeld As Long
    Dim lngPos As Long
    Dim blnInText As Boolean
    Dim strZeichen As String

    On Error GoTo Fehler

    ReDim arrFelder(0 To 0)
    For lngPos = 1 To Len(strZeile)
        strZeichen = Mid$(strZeile, lngPos, 1)
        Select Case True
            Case strZeichen = ZEICHEN_ANFÜHRUNG
                blnInText = Not blnInText
            Case strZeichen = TRENNZEICHEN And Not blnInText
                lngFeld = lngFeld + 1
                ReDim Preserve arrFelder(0 To lngFeld)
            Case Else
                arrFelder(lngFeld) = arrFelder(lngFeld) & strZeichen
        End Select
    Next lngPos
    ZeileTeilen = arrFelder

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Import", "ZeileTeilen", Err.Number, Err.Description
    Resume Ausgang
End Function

Private Sub KundeÜbernehmen(ByRef arrFelder() As String)
    Dim rs As DAO.Recordset
    Dim strSql As String

    On Error GoTo Fehler

    strSql = "SELECT * FROM tblKunden WHERE ShopNr = " & SqlText(arrFelder(0))
    Set rs = AktuelleDb().OpenRecordset(strSql, dbOpenDynaset)
    If rs.EOF Then
        rs.AddNew
        rs!ShopNr = arrFelder(0)
        rs!KundenNr = NächsteNummer("KD")
        mtypErgebnis.lngNeu = mtypErgebnis.lngNeu + 1
    Else
        rs.Edit
        mtypErgebnis.lngGeändert = mtypErgebnis.lngGeändert + 1
    End If
    rs!Firma = arrFelder(1)
    rs!Nachname = arrFelder(2)
    rs!Straße = arrFelder(3)
    rs!Plz = arrFelder(4)
    rs!Ort = arrFelder(5)
    rs!Land = arrFelder(6)
    If IstMailAdresse(arrFelder(7)) Then rs!Mail = arrFelder(7)
    rs.Update

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Sub
Fehler:
    mtypErgebnis.lngFehlerhaft = mtypErgebnis.lngFehlerhaft + 1
    mcolFehler.Add arrFelder(0) & ": " & Err.Description
    Resume Ausgang
End Sub

' Kontoauszug im festen Satzaufbau der Bank, übernommen aus Version 2
Public Function KontoauszugEinlesen(strDatei$, Optional blnProbe As Boolean)
    Dim strZeile$, strText$, lngNr&
    Dim intKanal%
    Dim curBetrag@
    Dim varAlt

    intKanal = FreeFile
    Open strDatei For Input As #intKanal
    While Not EOF(intKanal)
        Line Input #intKanal, strZeile
        Select Case Left(strZeile, 2)
            Case "01": GoSub KopfLesen
            Case "51": GoSub UmsatzLesen
            Case "99": GoSub SummePrüfen
        End Select
    Wend
    Close #intKanal
    KontoauszugEinlesen = lngNr
    Exit Function

KopfLesen:
    strText = Trim(Mid(strZeile, 3, 27))
    Return

UmsatzLesen:
    lngNr = lngNr + 1
    curBetrag = Val(Mid(strZeile, 32, 12)) / 100
    If Mid(strZeile, 44, 1) = "S" Then curBetrag = -curBetrag
    If Not blnProbe Then UmsatzSpeichern strText, Mid(strZeile, 50, 27), curBetrag
    Return

SummePrüfen:
    If Val(Right(strZeile, 6)) <> lngNr Then MsgBox "Anzahl stimmt nicht": Beep
    Return
End Function

Private Sub UmsatzSpeichern(ByVal strKonto As String, ByVal strZweck As String, ByVal curBetrag As Currency)
    Dim lngRechnungNr As Long

    On Error GoTo Fehler

    lngRechnungNr = RechnungAusZweck(strZweck)
    SqlAusführen "INSERT INTO tblUmsätze (Konto, Zweck, Betrag, RechnungNr) VALUES (" & SqlText(strKonto) & ", " & _
        SqlText(Trim$(strZweck)) & ", " & SqlZahl(curBetrag) & ", " & lngRechnungNr & ")"

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_Import", "UmsatzSpeichern", Err.Number, Err.Description
    Resume Ausgang
End Sub

Private Function RechnungAusZweck(ByVal strZweck As String) As Long
    Dim lngPos As Long
    Const KENNUNG As String = "RE"
    Const KENNUNG_ALT = "RG"

    On Error Resume Next
    lngPos = InStr(strZweck, KENNUNG)
    If lngPos > 0 Then RechnungAusZweck = Val(Mid$(strZweck, lngPos + Len(KENNUNG)))
End Function

Public Function NeuesteDatei(ByVal strMuster As String) As String
    Dim strDatei As String
    Dim strNeu As String

    On Error Resume Next
    strDatei = Dir(AnwendungsPfad() & PFAD_EINGANG & strMuster)
    Do While strDatei <> ""
        If strNeu = "" Or strDatei > strNeu Then strNeu = strDatei
        strDatei = Dir
    Loop
    NeuesteDatei = strNeu
End Function

Public Property Get ImportFehler() As Collection
    Set ImportFehler = mcolFehler
End Property

Public Property Set ImportFehler(ByVal colWert As Collection)
    Set mcolFehler = colWert
End Property
